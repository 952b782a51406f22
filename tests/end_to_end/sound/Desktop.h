// A desktop with programs that play sound.
#pragma once

#include "tests/support/TemporaryRoot.h"
#include "tests/support/sound/Engine.h"
#include "tests/support/sound/Levels.h"
#include "tests/support/sound/Recorder.h"
#include "tests/support/sound/SoundFile.h"
#include "tests/support/sound/SoundSystem.h"
#include "tests/support/sound/Wait.h"

#include <gmock/gmock.h>

#include <iostream>

namespace brimsound::tests {

/// A program that plays sound until this object is destroyed. Its output is discarded.
class Player : public desktop::ChildProcess {
public:
    explicit Player(const std::vector<std::string>& command)
        : ChildProcess(quietly(command))
    {
    }

private:
    static std::vector<std::string> quietly(const std::vector<std::string>& command)
    {
        std::vector<std::string> arguments { "sh", "-c", "exec \"$@\" >/dev/null 2>&1", "sh" };
        arguments.insert(arguments.end(), command.begin(), command.end());
        return arguments;
    }
};

/// A preamp of -6 dB distinguishes the equalized sound from the original.
inline constexpr double preampDecibels = -6;
inline constexpr double equalizedLevel = sineLevel * 0.5011872;
/// 1 dB above the equalized level; the original would be far above.
inline constexpr double equalizedLimit = equalizedLevel * 1.1220185;

/// The test's own sound system, preferences with a preamp of -6 dB, and a minute of a 1 kHz sine to play.
class ADesktop : public testing::Test {
protected:
    explicit ADesktop(SoundSystem::Devices devices = SoundSystem::Devices::All)
        : system(devices)
        , tone(system.folder() / "tone.wav")
        , playTone { "pw-play", tone }
    {
        storePreferences(preamp(preampDecibels));
        writeSound(tone, sine(60));
    }

    void TearDown() override
    {
        if (HasFailure())
            std::cerr << system.report();
    }

    static bool isNear(double level, double wanted)
    {
        return level > wanted * 0.97 - 1e-4 && level < wanted * 1.03 + 1e-4;
    }

    /// Waits for the device to play at that level for a while. Returns whether it does.
    static testing::AssertionResult comesTo(const Recorder& device, double wanted)
    {
        double found = 0;
        const bool came = eventually([&] {
            found = level(device.next(9600));
            return isNear(found, wanted);
        });
        return (came ? testing::AssertionSuccess() : testing::AssertionFailure())
            << "the level is " << found << ", not " << wanted;
    }

    std::uint32_t nodeOf(const std::string& name)
    {
        eventually([&] { return system.node(name).has_value(); });
        return system.node(name).value();
    }

    TemporaryRoot root;
    SoundSystem system;
    std::filesystem::path tone;
    std::vector<std::string> playTone;
};

} // namespace brimsound::tests
