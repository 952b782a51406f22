// What is left of a gesture once a fault is over.
#pragma once

#include "tests/brimsound/Program.h"
#include "tests/support/MediaServer.h"

#include <gmock/gmock.h>

#include <chrono>
#include <functional>
#include <vector>

namespace brimsound::tests {

/// The gains in the preferences file, the preamp first; empty unless the file is whole and holds them all.
std::vector<float> storedGains();

/// Whether the media server comes to play those gains.
bool comesToPlay(MediaServer&, const std::vector<float>& gains);

/// Moves the third band to that many dB and lets go. Whether the file was written whole, the notification was
/// posted, and the media server then plays what the file holds.
testing::AssertionResult releaseArrives(RunningProgram&, MediaServer&, float gain);

/// The process that serves the media server's center; 0 when none does.
pid_t serverProcess();

/// Waits until the condition holds, ten seconds at most. Whether it does.
bool eventually(const std::function<bool()>& condition);

/// How long the action takes, in seconds.
template <typename Action> double secondsOf(const Action& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The second that a send is waited for; on a busy machine everything takes longer.
inline auto oneSecond()
{
    return testing::AllOf(testing::Ge(0.9), testing::Lt(1.9));
}

} // namespace brimsound::tests
