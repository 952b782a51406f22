// Watching what the audio thread must not do.
#pragma once

#include <cstddef>

namespace brimsound::tests {

/// Counts what this thread takes of the heap and how often it locks a mutex while this object lives. Only for
/// test programs that link RealTimeWatch.cpp; one object at a time on a thread.
class RealTimeWatch {
public:
    RealTimeWatch();
    RealTimeWatch(const RealTimeWatch&) = delete;
    RealTimeWatch& operator=(const RealTimeWatch&) = delete;
    ~RealTimeWatch();

    /// Memory taken or given back.
    std::size_t allocations() const;
    std::size_t locks() const;
};

} // namespace brimsound::tests
