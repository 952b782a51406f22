#pragma once

#include "_types.h"
#include <stdarg.h>

typedef off_t fpos_t;

#define EOF (-1)
#define BUFSIZ 1024
#define FILENAME_MAX 1024
#define FOPEN_MAX 20
#define L_tmpnam 1024
#define TMP_MAX 308915776
#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2
#define _IOFBF 0
#define _IOLBF 1
#define _IONBF 2

BEGIN_DECLS
extern FILE* __stdinp;
extern FILE* __stdoutp;
extern FILE* __stderrp;
#define stdin __stdinp
#define stdout __stdoutp
#define stderr __stderrp

FILE* fopen(const char* path, const char* mode);
FILE* freopen(const char* path, const char* mode, FILE*);
FILE* tmpfile(void);
char* tmpnam(char*);
int fclose(FILE*);
int fflush(FILE*);
void setbuf(FILE*, char*);
int setvbuf(FILE*, char*, int, size_t);
FILE* fdopen(int, const char* mode);

int fgetc(FILE*);
char* fgets(char*, int, FILE*);
int fputc(int, FILE*);
int fputs(const char*, FILE*);
int getc(FILE*);
int getchar(void);
char* gets(char*);
int putc(int, FILE*);
int putchar(int);
int puts(const char*);
int ungetc(int, FILE*);
size_t fread(void*, size_t, size_t, FILE*);
size_t fwrite(const void*, size_t, size_t, FILE*);

int fgetpos(FILE*, fpos_t*);
int fsetpos(FILE*, const fpos_t*);
int fseek(FILE*, long, int);
long ftell(FILE*);
void rewind(FILE*);
void clearerr(FILE*);
int feof(FILE*);
int ferror(FILE*);
void perror(const char*);
int remove(const char*);
int rename(const char*, const char*);

int printf(const char*, ...) __attribute__((format(printf, 1, 2)));
int fprintf(FILE*, const char*, ...) __attribute__((format(printf, 2, 3)));
int sprintf(char*, const char*, ...) __attribute__((format(printf, 2, 3)));
int snprintf(char*, size_t, const char*, ...) __attribute__((format(printf, 3, 4)));
int vprintf(const char*, va_list) __attribute__((format(printf, 1, 0)));
int vfprintf(FILE*, const char*, va_list) __attribute__((format(printf, 2, 0)));
int vsprintf(char*, const char*, va_list) __attribute__((format(printf, 2, 0)));
int vsnprintf(char*, size_t, const char*, va_list) __attribute__((format(printf, 3, 0)));
int scanf(const char*, ...) __attribute__((format(scanf, 1, 2)));
int fscanf(FILE*, const char*, ...) __attribute__((format(scanf, 2, 3)));
int sscanf(const char*, const char*, ...) __attribute__((format(scanf, 2, 3)));
int vscanf(const char*, va_list) __attribute__((format(scanf, 1, 0)));
int vfscanf(FILE*, const char*, va_list) __attribute__((format(scanf, 2, 0)));
int vsscanf(const char*, const char*, va_list) __attribute__((format(scanf, 2, 0)));
END_DECLS
