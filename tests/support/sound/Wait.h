// Waiting for what other programs do.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace brimsound::tests {

/// Asks again and again until the answer is yes, for half a minute at most. Whether it was.
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
