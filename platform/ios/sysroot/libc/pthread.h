// The parts of pthreads that libc++ needs; the pane has one thread. Sizes, signatures and constants are
// Darwin's.
#pragma once

#include "_types.h"
#include "sched.h"

#define PTHREAD_OPAQUE(size)                                                                                 \
    struct {                                                                                                 \
        long signature;                                                                                      \
        char opaque[size];                                                                                   \
    }
typedef PTHREAD_OPAQUE(56) pthread_attr_t;
typedef PTHREAD_OPAQUE(40) pthread_cond_t;
typedef PTHREAD_OPAQUE(8) pthread_condattr_t;
typedef PTHREAD_OPAQUE(56) pthread_mutex_t;
typedef PTHREAD_OPAQUE(8) pthread_mutexattr_t;
typedef PTHREAD_OPAQUE(8) pthread_once_t;
#undef PTHREAD_OPAQUE

typedef struct _opaque_pthread_t* pthread_t;
typedef unsigned long pthread_key_t;

#define PTHREAD_MUTEX_INITIALIZER                                                                            \
    {                                                                                                        \
        0x32AAABA7,                                                                                          \
        {                                                                                                    \
            0                                                                                                \
        }                                                                                                    \
    }
#define PTHREAD_COND_INITIALIZER                                                                             \
    {                                                                                                        \
        0x3CB0B1BB,                                                                                          \
        {                                                                                                    \
            0                                                                                                \
        }                                                                                                    \
    }
#define PTHREAD_ONCE_INIT                                                                                    \
    {                                                                                                        \
        0x30B1BCBA,                                                                                          \
        {                                                                                                    \
            0                                                                                                \
        }                                                                                                    \
    }
#define PTHREAD_MUTEX_RECURSIVE 2

BEGIN_DECLS
int pthread_mutexattr_init(pthread_mutexattr_t*);
int pthread_mutexattr_settype(pthread_mutexattr_t*, int);
int pthread_mutexattr_destroy(pthread_mutexattr_t*);
int pthread_mutex_init(pthread_mutex_t*, const pthread_mutexattr_t*);
int pthread_mutex_lock(pthread_mutex_t*);
int pthread_mutex_trylock(pthread_mutex_t*);
int pthread_mutex_unlock(pthread_mutex_t*);
int pthread_mutex_destroy(pthread_mutex_t*);
int pthread_cond_signal(pthread_cond_t*);
int pthread_cond_broadcast(pthread_cond_t*);
int pthread_cond_wait(pthread_cond_t*, pthread_mutex_t*);
int pthread_cond_timedwait(pthread_cond_t*, pthread_mutex_t*, const struct timespec*);
int pthread_cond_destroy(pthread_cond_t*);
int pthread_once(pthread_once_t*, void (*)(void));
pthread_t pthread_self(void);
int pthread_equal(pthread_t, pthread_t);
int pthread_create(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
int pthread_join(pthread_t, void**);
int pthread_detach(pthread_t);
int pthread_key_create(pthread_key_t*, void (*)(void*));
void* pthread_getspecific(pthread_key_t);
int pthread_setspecific(pthread_key_t, const void*);
END_DECLS
