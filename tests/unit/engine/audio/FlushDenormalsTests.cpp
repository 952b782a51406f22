#include "desktop/engine/audio/FlushDenormals.h"

#include "desktop/engine/audio/BellFilter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>

namespace brimsound::audio::tests {

namespace {

// Volatile, so that the compiler cannot compute with the value.
double volatile smallest = std::numeric_limits<double>::min();
double volatile one = 1;

// Examines the bits, because comparisons treat such a number as zero in flush mode.
bool isSubnormal(double number)
{
    const auto bits = std::bit_cast<std::uint64_t>(number) << 1;
    return bits != 0 && bits >> 53 == 0;
}

/// How often the state of a bell is subnormal while it decays.
int subnormalsWhileRingingOut()
{
    const auto bell = bellCoefficients(6, 0.1, 1);
    BellFilter<double> filter;
    filter.next(one, bell);
    int count = 0;
    for (int sample = 0; sample < 100000; ++sample) {
        filter.next(0, bell);
        for (const double state : { filter.s1, filter.s2 })
            count += isSubnormal(state);
    }
    return count;
}

} // namespace

TEST(FlushingDenormals, LastsAsLongAsTheObject)
{
    EXPECT_NE(smallest / 2, 0);
    {
        const FlushDenormals flushDenormals;
        EXPECT_EQ(smallest / 2, 0);
    }
    EXPECT_NE(smallest / 2, 0);
}

TEST(FlushingDenormals, CanBeNested)
{
    const FlushDenormals outer;
    {
        const FlushDenormals inner;
    }
    EXPECT_EQ(smallest / 2, 0);
}

TEST(FlushingDenormals, EndsARingingFilterInSilence)
{
    EXPECT_GT(subnormalsWhileRingingOut(), 0);
    const FlushDenormals flushDenormals;
    EXPECT_EQ(subnormalsWhileRingingOut(), 0);
}

} // namespace brimsound::audio::tests
