// Types that several headers share, sized as on 64-bit Darwin.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define BEGIN_DECLS extern "C" {
#define END_DECLS }
#else
#define BEGIN_DECLS
#define END_DECLS
#endif

typedef long ssize_t;
typedef long long off_t;
typedef int pid_t;
typedef long time_t;
typedef unsigned long clock_t;
typedef struct __sFILE FILE;

typedef union {
    char __mbstate8[128];
    long long _mbstateL;
} mbstate_t;

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};
