#include "tests/unit/toolkit/Redrawing.h"
#include "toolkit/control/Slider.h"
#include "toolkit/control/Switch.h"

#include <cmath>

namespace brimsound::tests {

namespace {

using testing::IsEmpty;
using testing::Not;
using toolkit::Color;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Slider;
using toolkit::Switch;

constexpr Color black { 0, 0, 0 };

using RedrawingASlider = Redrawing;

TEST_F(RedrawingASlider, IncludesWhatItDrawsBeyondItsEdges)
{
    const auto slider = make<Slider>();
    slider->setFrame(makeRect(50, 50, 100, 28));
    window->add(*slider);
    const auto drawn = together();
    EXPECT_LT(drawn.top(), 50);
    slider->removeFromParent();
    EXPECT_EQ(together(), drawn);
}

TEST_F(RedrawingASlider, IncludesItsThumbsShadow)
{
    const auto slider = added<Slider>(makeRect(50, 50, 100, 28));
    slider->setValue(0.5f);
    const auto part = together();
    EXPECT_LE(part.top(), 48);
    EXPECT_GE(part.bottom(), 82);
    EXPECT_LT(part.size.height, 60);
}

TEST_F(RedrawingASlider, HappensWhenItsTintChanges)
{
    const auto slider = added<Slider>(makeRect(50, 50, 100, 28));
    slider->setTint(black);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    slider->setTint(std::nullopt);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    // A transparent track differs from one in the theme's color.
    slider->setTint(toolkit::transparent);
    EXPECT_THAT(parts(), Not(IsEmpty()));
}

TEST_F(RedrawingASlider, DoesNotHappenWhenItLooksTheSame)
{
    const auto slider = added<Slider>(makeRect(50, 50, 100, 28));
    slider->setValue(1);
    slider->setTint(black);
    parts();
    slider->setValue(1);
    slider->setValue(5);
    slider->setValue(std::nanf(""));
    slider->setTint(black);
    slider->setMinimum(slider->minimum());
    slider->setMaximum(slider->maximum());
    EXPECT_THAT(parts(), IsEmpty());
}

using RedrawingASwitch = Redrawing;

TEST_F(RedrawingASwitch, DoesNotHappenWhenItLooksTheSame)
{
    const auto toggle = added<Switch>(makeRect(50, 50, 51, 31));
    toggle->setOn(true, false);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    toggle->setOn(true, false);
    EXPECT_THAT(parts(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
