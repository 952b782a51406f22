// The state after a fault is over.
#pragma once

#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/MediaServer.h"

#include <gmock/gmock.h>

#include <chrono>
#include <functional>
#include <vector>

namespace brimsound::tests {

/// The gains in the preferences file, the preamp first; empty unless the file is complete and has all of
/// them.
std::vector<float> storedGains();

/// Waits for the media server to play those gains. Returns whether it does.
bool comesToPlay(MediaServer&, const std::vector<float>& gains);

/// Moves the third band to that gain in dB and releases it. Checks that the file is written completely, that
/// the notification is posted, and that the media server then plays the gains in the file.
testing::AssertionResult releaseArrives(RunningProgram&, MediaServer&, float gain);

/// The process of the media server; 0 when there is none.
pid_t serverProcess();

/// Waits until the condition is true, for ten seconds at most. Returns whether it is.
bool eventually(const std::function<bool()>& condition);

/// The duration of the action in seconds.
template <typename Action> double secondsOf(const Action& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The one-second timeout of a send; on a busy machine everything takes longer.
inline auto oneSecond()
{
    return testing::AllOf(testing::Ge(0.9), testing::Lt(1.9));
}

} // namespace brimsound::tests
