#include "desktop/engine/audio/TripleBuffer.h"

#include "desktop/engine/audio/FilterTargets.h"

#include <gtest/gtest.h>

#include <thread>

namespace brimsound::audio::tests {

namespace {

// All numbers are the same, so that a mixture of two values is detected.
FilterTargets numbered(double number)
{
    FilterTargets targets { .rate = number, .preamp = number };
    targets.gains.fill(number);
    targets.tangents.fill(number);
    targets.inverseQ.fill(number);
    return targets;
}

bool isWhole(const FilterTargets& targets)
{
    const auto same = numbered(targets.rate);
    return targets.preamp == same.preamp && targets.gains == same.gains && targets.tangents == same.tangents
        && targets.inverseQ == same.inverseQ;
}

} // namespace

TEST(AHandover, HasNothingToReadBeforeTheFirstWrite)
{
    TripleBuffer<int> buffer;
    EXPECT_EQ(buffer.read(), nullptr);
}

TEST(AHandover, ReturnsEachValueOnce)
{
    TripleBuffer<int> buffer;
    buffer.write(7);
    const auto* value = buffer.read();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, 7);
    EXPECT_EQ(buffer.read(), nullptr);
    EXPECT_EQ(*value, 7);
}

TEST(AHandover, ReturnsTheNewestOfSeveral)
{
    TripleBuffer<int> buffer;
    for (int value = 1; value <= 5; ++value)
        buffer.write(value);
    const auto* value = buffer.read();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, 5);
}

TEST(AHandover, DoesNotChangeAValueThatIsBeingRead)
{
    TripleBuffer<int> buffer;
    buffer.write(1);
    const auto* value = buffer.read();
    for (int next = 2; next <= 9; ++next) {
        buffer.write(next);
        EXPECT_EQ(*value, 1);
    }
}

TEST(AHandover, BetweenThreadsIsConsistentInOrderAndEndsWithTheLast)
{
    constexpr int last = 100000;
    TripleBuffer<FilterTargets> buffer;
    std::thread writer([&] {
        for (int number = 1; number <= last; ++number)
            buffer.write(numbered(number));
    });
    double newest = 0;
    bool whole = true;
    bool ordered = true;
    while (newest < last) {
        if (const auto* targets = buffer.read()) {
            whole = whole && isWhole(*targets);
            ordered = ordered && targets->rate > newest;
            newest = targets->rate;
        }
    }
    writer.join();
    EXPECT_TRUE(whole);
    EXPECT_TRUE(ordered);
    EXPECT_EQ(buffer.read(), nullptr);
}

} // namespace brimsound::audio::tests
