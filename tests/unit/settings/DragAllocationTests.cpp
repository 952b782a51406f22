// The heap allocations of a drag, from the finger's move to the media server's reply, except for those of the
// bus library.
#include "settings/GainColor.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/AllocationCount.h"
#include "tests/support/HeldSlider.h"
#include "tests/support/MediaServer.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

/// The eleven values and their dictionary.
constexpr std::size_t allocationsOfAMessage = 2;

class DraggingABand : public testing::Test {
protected:
    /// Every step must allocate exactly this much.
    static void expectAllocationsOfAStep(std::size_t expected)
    {
        HeldSlider held({ 320, 568 });
        held.dragTo(1);
        for (const double value : { 2.5, -11.5, 9.0, 0.5, -0.5, 12.0 }) {
            EXPECT_EQ(allocationsOf([&] { held.dragTo(value); }), expected) << value;
            EXPECT_NEAR(held.slider().value(), value, 0.001);
        }
    }

    TemporaryRoot root;
    TestBus bus;
    MediaServer server;
    const std::size_t ofAColor = allocationsOf([] { uiColor(gainColor(3)); });
};

TEST_F(DraggingABand, WithAutoPreampAllocatesItsMessageAndTheBandsColors)
{
    EXPECT_EQ(ofAColor, 2u);
    expectAllocationsOfAStep(allocationsOfAMessage + 10 * ofAColor);
}

TEST_F(DraggingABand, AllocatesItsMessageAndOneColor)
{
    write_preferences({ { autoPreampKey, false } });
    expectAllocationsOfAStep(allocationsOfAMessage + ofAColor);
}

} // namespace

} // namespace brimsound::tests
