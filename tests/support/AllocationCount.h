#pragma once

#include <cstddef>

namespace brimsound::tests {

/// The number of calls of operator new in this process. Only for test programs that link AllocationCount.cpp.
std::size_t allocationCount();

/// The number of allocations by the action.
template <typename Action> std::size_t allocationsOf(const Action& action)
{
    const auto before = allocationCount();
    action();
    return allocationCount() - before;
}

} // namespace brimsound::tests
