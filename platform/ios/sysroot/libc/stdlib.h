#pragma once

#include "_types.h"

#define EXIT_FAILURE 1
#define EXIT_SUCCESS 0
#define RAND_MAX 0x7fffffff
#define MB_CUR_MAX 4

typedef struct {
    int quot;
    int rem;
} div_t;
typedef struct {
    long quot;
    long rem;
} ldiv_t;
typedef struct {
    long long quot;
    long long rem;
} lldiv_t;

BEGIN_DECLS
void* malloc(size_t);
void* calloc(size_t, size_t);
void* realloc(void*, size_t);
void* aligned_alloc(size_t alignment, size_t size) __attribute__((availability(ios, introduced = 13.0)));
int posix_memalign(void**, size_t alignment, size_t size);
void free(void*);

int atoi(const char*);
long atol(const char*);
long long atoll(const char*);
double atof(const char*);
long strtol(const char*, char**, int);
long long strtoll(const char*, char**, int);
unsigned long strtoul(const char*, char**, int);
unsigned long long strtoull(const char*, char**, int);
float strtof(const char*, char**);
double strtod(const char*, char**);
long double strtold(const char*, char**);

int abs(int);
long labs(long);
long long llabs(long long);
div_t div(int, int);
ldiv_t ldiv(long, long);
lldiv_t lldiv(long long, long long);
int rand(void);
void srand(unsigned);

void qsort(void*, size_t, size_t, int (*)(const void*, const void*));
void* bsearch(const void*, const void*, size_t, size_t, int (*)(const void*, const void*));

int mblen(const char*, size_t);
int mbtowc(wchar_t*, const char*, size_t);
int wctomb(char*, wchar_t);
size_t mbstowcs(wchar_t*, const char*, size_t);
size_t wcstombs(char*, const wchar_t*, size_t);

char* getenv(const char*);
int system(const char*);
int atexit(void (*)(void));
__attribute__((noreturn)) void abort(void);
__attribute__((noreturn)) void exit(int);
__attribute__((noreturn)) void _Exit(int);
END_DECLS
