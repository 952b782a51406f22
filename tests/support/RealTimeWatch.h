// Detecting what the audio thread must not do.
#pragma once

#include <cstddef>

namespace brimsound::tests {

/// Counts the heap operations and mutex locks of this thread while this object exists. Only for test programs
/// that link RealTimeWatch.cpp; one object at a time on a thread.
class RealTimeWatch {
public:
    RealTimeWatch();
    RealTimeWatch(const RealTimeWatch&) = delete;
    RealTimeWatch& operator=(const RealTimeWatch&) = delete;
    ~RealTimeWatch();

    /// The number of allocations and deallocations.
    std::size_t allocations() const;
    std::size_t locks() const;
};

} // namespace brimsound::tests
