#include "tests/support/RealTimeWatch.h"

#include <dlfcn.h>
#include <pthread.h>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define WITH_ADDRESS_SANITIZER
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define WITH_ADDRESS_SANITIZER
#endif

namespace {

struct Counts {
    bool watching = false;
    std::size_t allocations = 0;
    std::size_t locks = 0;
};

thread_local Counts counts;

void countAllocation()
{
    if (counts.watching)
        ++counts.allocations;
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizer's and the C library's.
extern "C" {

#ifdef WITH_ADDRESS_SANITIZER
// The sanitizer has its own allocator, which calls these functions.
void __sanitizer_malloc_hook(const volatile void*, std::size_t)
{
    countAllocation();
}

void __sanitizer_free_hook(const volatile void*)
{
    countAllocation();
}
#else
// These replace the C library's functions; operator new calls them too.
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void __libc_free(void*);

void* malloc(std::size_t size)
{
    countAllocation();
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    countAllocation();
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    countAllocation();
    return __libc_realloc(memory, size);
}

void free(void* memory)
{
    countAllocation();
    __libc_free(memory);
}
#endif

int pthread_mutex_lock(pthread_mutex_t* mutex)
{
    using Lock = int (*)(pthread_mutex_t*);
    static const auto next = reinterpret_cast<Lock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    if (counts.watching)
        ++counts.locks;
    return next(mutex);
}
}
// NOLINTEND(bugprone-reserved-identifier)

namespace brimsound::tests {

RealTimeWatch::RealTimeWatch()
{
    counts = { .watching = true };
}

RealTimeWatch::~RealTimeWatch()
{
    counts.watching = false;
}

std::size_t RealTimeWatch::allocations() const
{
    return counts.allocations;
}

std::size_t RealTimeWatch::locks() const
{
    return counts.locks;
}

} // namespace brimsound::tests
