#include "platform/UIKit/UISlider.h"

#include "platform/Foundation/NSString.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;

std::string gainText(double gain)
{
    return stringWithFormat("%.1f dB", gain);
}

/// Writes down the slider's events.
class Events : public NSObject {
public:
    std::vector<std::string> seen;

    std::span<const Method> methods() const override
    {
        static const std::array table {
            method<&Events::down>("down:"),
            method<&Events::dragged>("dragged:"),
            method<&Events::changed>("changed:"),
            method<&Events::up>("up:"),
        };
        return table;
    }

private:
    void down(UISlider&) { seen.emplace_back("down"); }
    void dragged(UISlider&) { seen.emplace_back("drag"); }
    void changed(UISlider&) { seen.emplace_back("value"); }
    void up(UISlider&) { seen.emplace_back("up"); }
};

TEST(ASlider, IsNotMirroredInLanguagesThatAreReadFromRightToLeft)
{
    const auto slider = make<UISlider>();
    EXPECT_EQ([static_cast<::UIView*>(ios::nativeOf(*slider)) semanticContentAttribute],
        UISemanticContentAttributeForceLeftToRight);
}

/// From -12 to 12, with the product's steps.
class AnAccessibleSlider : public testing::Test {
protected:
    AnAccessibleSlider()
    {
        slider->setMaximumValue(12);
        slider->setMinimumValue(-12);
        slider->setAccessibilityAdjustment({ 0.1, 1, "dB", gainText });
        slider->addTargetActionForControlEvents(*events, "down:", UIControlEventTouchDown);
        slider->addTargetActionForControlEvents(*events, "dragged:", UIControlEventTouchDragInside);
        slider->addTargetActionForControlEvents(*events, "changed:", UIControlEventValueChanged);
        slider->addTargetActionForControlEvents(*events, "up:", UIControlEventTouchUpInside);
    }

    ::UISlider* native() const { return ios::nativeOf(*slider); }
    std::string spoken() const { return ios::textOf([native() accessibilityValue]); }

    const RetainPtr<Events> events = make<Events>();
    const RetainPtr<UISlider> slider = make<UISlider>();
};

TEST_F(AnAccessibleSlider, SaysItsValueInTheProductsWords)
{
    slider->setValue(4.5f);
    EXPECT_EQ(spoken(), "4.5 dB");
    slider->setValue(-0.01f);
    EXPECT_EQ(spoken(), "0.0 dB");
}

TEST_F(AnAccessibleSlider, MovesByAStepWithTheEventsOfATouch)
{
    [native() accessibilityIncrement];
    EXPECT_EQ(slider->value(), 0.1f);
    EXPECT_THAT(events->seen, ElementsAre("down", "value", "drag", "up"));
    [native() accessibilityDecrement];
    EXPECT_EQ(slider->value(), 0);
}

TEST_F(AnAccessibleSlider, StaysAtItsEnd)
{
    slider->setValue(12);
    [native() accessibilityIncrement];
    EXPECT_EQ(slider->value(), 12);
    EXPECT_THAT(events->seen, ElementsAre("down", "drag", "up"));
}

TEST(ASliderWithoutSteps, IsNotMovedByAScreenReader)
{
    const auto slider = make<UISlider>();
    [static_cast<::UISlider*>(ios::nativeOf(*slider)) accessibilityIncrement];
    EXPECT_EQ(slider->value(), 0);
}

TEST(ALabelThatNamesAnotherView, IsNoElementOfItsOwn)
{
    const auto view = make<UIView>();
    view->setIsAccessibilityElement(true);
    EXPECT_TRUE([static_cast<::UIView*>(ios::nativeOf(*view)) isAccessibilityElement]);
    view->setIsAccessibilityElement(false);
    EXPECT_FALSE(view->isAccessibilityElement());
}

} // namespace

} // namespace brimsound::tests
