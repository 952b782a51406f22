#include "platform/UIKit/UISlider.h"

#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "tests/unit/platform/UIKit/Geometry.h"
#include "toolkit/control/Slider.h"
#include "toolkit/window/Window.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

toolkit::Slider& nativeOf(const UISlider& slider)
{
    return desktop::nativeOf<toolkit::Slider>(slider);
}

TEST(AUISlider, HasTheValueAndTheRangeOfTheNativeOne)
{
    const auto slider = make<UISlider>();
    slider->setMinimumValue(-12);
    slider->setMaximumValue(12);
    slider->setValue(4.5f);
    EXPECT_EQ(nativeOf(*slider).minimum(), -12);
    EXPECT_EQ(nativeOf(*slider).maximum(), 12);
    EXPECT_EQ(nativeOf(*slider).value(), 4.5f);
    EXPECT_EQ(slider->minimumValue(), -12);
    EXPECT_EQ(slider->maximumValue(), 12);
    EXPECT_EQ(slider->value(), 4.5f);
}

TEST(AUISlider, HasNoTintUntilItIsGivenOne)
{
    const auto slider = make<UISlider>();
    EXPECT_FALSE(slider->minimumTrackTintColor());
    const auto tint = UIColor::lightGrayColor();
    slider->setMinimumTrackTintColor(tint);
    EXPECT_EQ(desktop::toolkitColor(slider->minimumTrackTintColor()), desktop::toolkitColor(tint));
    EXPECT_EQ(nativeOf(*slider).tint(), desktop::toolkitColor(tint));
    slider->setMinimumTrackTintColor(nullptr);
    EXPECT_FALSE(slider->minimumTrackTintColor());
}

TEST(AUISlider, HandsItsAdjustmentToTheNativeOne)
{
    const auto slider = make<UISlider>();
    slider->setMaximumValue(12);
    slider->setAccessibilityAdjustment(
        { .step = 0.5, .largeStep = 2, .unit = "dB", .valueText = [](double value) {
             return std::to_string(static_cast<int>(value * 10)) + " tenths";
         } });
    slider->setValue(1.4f);
    const auto accessible = nativeOf(*slider).accessible();
    EXPECT_EQ(accessible.range->step, 0.5);
    EXPECT_EQ(accessible.description, "dB");
    EXPECT_EQ(accessible.value, "15 tenths");
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 480 });
    slider->setFrame(CGRectMake(0, 0, 200, 44));
    window->add(nativeOf(*slider));
    nativeOf(*slider).setValue(0);
    nativeOf(*slider).keyPressed(toolkit::Key::PageUp, toolkit::KeyStroke::First);
    EXPECT_EQ(slider->value(), 2);
    nativeOf(*slider).keysReleased();
}

TEST(AUISlider, TellsTheImageOfItsThumb)
{
    const auto slider = make<UISlider>();
    ASSERT_NE(slider->currentThumbImage(), nullptr);
    const auto size = toolkit::Slider::thumb().size();
    EXPECT_EQ(slider->currentThumbImage()->size(), (CGSize { size.width, size.height }));
}

} // namespace

} // namespace brimsound::tests
