// Waiting for other programs.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace brimsound::tests {

/// Evaluates the condition repeatedly until it is true, for half a minute at most. Returns whether it is.
inline bool eventually(const std::function<bool()>& condition)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

} // namespace brimsound::tests
