// Code on the audio thread neither allocates nor locks.
#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/EqualizerProcessor.h"
#include "desktop/engine/audio/Limiter.h"
#include "desktop/engine/audio/TripleBuffer.h"
#include "tests/support/RealTimeWatch.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace brimsound::audio::tests {

using brimsound::tests::RealTimeWatch;

TEST(AWatch, SeesAllocationsAndLocks)
{
    const RealTimeWatch watch;
    EXPECT_EQ(watch.allocations(), 0U);
    EXPECT_EQ(watch.locks(), 0U);
    auto numbers = std::make_unique<std::vector<int>>(100);
    EXPECT_GE(watch.allocations(), 2U);
    numbers.reset();
    EXPECT_GE(watch.allocations(), 4U);
    std::mutex mutex;
    mutex.lock();
    EXPECT_EQ(watch.locks(), 1U);
    mutex.unlock();
}

TEST(Processing, NeitherAllocatesNorLocksWhileTargetsArrive)
{
    constexpr std::size_t frames = 1024;
    std::vector<std::vector<float>> samples(maximumChannels, std::vector<float>(frames, 0.7f));
    std::vector<float*> channels;
    for (auto& channel : samples)
        channels.push_back(channel.data());

    TripleBuffer<FilterTargets> handover;
    std::atomic<bool> done = false;
    std::thread writer([&] {
        const EqualizerDesign design(48000);
        for (int count = 0; !done; ++count) {
            const double gain = count % 25 - 12;
            BandGains sliders;
            sliders.fill(gain);
            handover.write(design.solve(sliders, -gain));
        }
    });

    auto processor = std::make_unique<EqualizerProcessor>();
    Limiter limiter(48000);
    int changes = 0;
    {
        const RealTimeWatch watch;
        for (int quantum = 0; quantum < 200 || changes < 20; ++quantum) {
            if (const auto* targets = handover.read()) {
                processor->set(*targets);
                ++changes;
            }
            processor->process(channels.data(), channels.data(), maximumChannels, frames);
            limiter.process(channels.data(), maximumChannels, frames);
            if (quantum % 50 == 0)
                processor->settle();
        }
        EXPECT_EQ(watch.allocations(), 0U);
        EXPECT_EQ(watch.locks(), 0U);
    }
    done = true;
    writer.join();
}

} // namespace brimsound::audio::tests
