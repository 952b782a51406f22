// Counting what is taken from the heap.
#pragma once

#include <cstddef>

namespace brimsound::tests {

/// How often this process has called operator new so far. Only for test programs that link
/// AllocationCount.cpp.
std::size_t allocationCount();

/// How many allocations the action makes.
template <typename Action> std::size_t allocationsOf(const Action& action)
{
    const auto before = allocationCount();
    action();
    return allocationCount() - before;
}

} // namespace brimsound::tests
