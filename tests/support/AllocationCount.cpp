#include "tests/support/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

} // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++count;
    return std::malloc(size > 0 ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace brimsound::tests {

std::size_t allocationCount()
{
    return count;
}

} // namespace brimsound::tests
