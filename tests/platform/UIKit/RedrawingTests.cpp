#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

#include <cmath>

namespace brimsound::tests {

namespace {

using desktop::Window;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// A window that notes the parts which have to be painted again.
class Redrawing : public testing::Test {
protected:
    Redrawing()
    {
        window->onInvalidate = [this](const CGRect& part) { _parts.push_back(part); };
    }

    /// The parts since the last call.
    std::vector<CGRect> parts() { return std::exchange(_parts, {}); }

    /// What has to be painted again since the last call, as one rectangle.
    CGRect together()
    {
        CGRect all;
        for (const auto& part : parts())
            all = desktop::unite(all, part);
        return all;
    }

    template <typename View> RetainPtr<View> added(const CGRect& frame)
    {
        auto view = make<View>();
        view->setFrame(frame);
        window->addSubview(*view);
        parts();
        return view;
    }

    const RetainPtr<Window> window = make<Window>(CGSize { 300, 300 });

private:
    std::vector<CGRect> _parts;
};

using MovingAView = Redrawing;

TEST_F(MovingAView, RedrawsTheOldAndTheNewPlace)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    view->setFrame(CGRectMake(100, 50, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 20, 20), CGRectMake(100, 50, 20, 20)));
}

TEST_F(MovingAView, ToWhereItIsRedrawsNothing)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    view->setFrame(CGRectMake(10, 10, 20, 20));
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(MovingAView, RedrawsWhatSticksOutOfItToo)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    view->addSubview(*make<UIView>(CGRectMake(15, 0, 30, 10)));
    parts();
    view->setFrame(CGRectMake(10, 100, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 45, 20), CGRectMake(10, 100, 45, 20)));
}

TEST_F(MovingAView, DoesNotRedrawWhatIsHiddenInIt)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    const auto hidden = make<UIView>(CGRectMake(15, 0, 30, 10));
    hidden->setHidden(true);
    view->addSubview(*hidden);
    parts();
    view->setFrame(CGRectMake(10, 100, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 20, 20), CGRectMake(10, 100, 20, 20)));
}

using AddingAndRemovingAView = Redrawing;

TEST_F(AddingAndRemovingAView, RedrawsItsPlace)
{
    const auto view = make<UIView>(CGRectMake(10, 10, 20, 20));
    window->addSubview(*view);
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 20, 20)));
    view->removeFromSuperview();
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 20, 20)));
}

TEST_F(AddingAndRemovingAView, RedrawsWhatItDrewBeyondItsEdges)
{
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(50, 50, 100, 28));
    window->addSubview(*slider);
    const auto drawn = together();
    EXPECT_LT(drawn.origin.y, 50);
    slider->removeFromSuperview();
    EXPECT_EQ(together(), drawn);
}

using HidingAView = Redrawing;

TEST_F(HidingAView, RedrawsItsPlaceAndSoDoesShowingIt)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    view->setHidden(true);
    EXPECT_EQ(together(), CGRectMake(10, 10, 20, 20));
    view->setHidden(true);
    EXPECT_THAT(parts(), IsEmpty());
    view->setHidden(false);
    EXPECT_EQ(together(), CGRectMake(10, 10, 20, 20));
}

TEST_F(HidingAView, KeepsWhatChangesInItFromBeingRedrawn)
{
    const auto box = added<UIView>(CGRectMake(10, 10, 50, 50));
    const auto view = make<UIView>(CGRectMake(5, 5, 10, 10));
    box->addSubview(*view);
    box->setHidden(true);
    parts();
    view->setBackgroundColor(UIColor::blackColor());
    view->setFrame(CGRectMake(20, 20, 10, 10));
    EXPECT_THAT(parts(), IsEmpty());
}

using AChangeInAView = Redrawing;

TEST_F(AChangeInAView, IsRedrawnInWindowCoordinates)
{
    const auto box = added<UIView>(CGRectMake(10, 10, 100, 100));
    const auto view = make<UIView>(CGRectMake(20, 60, 10, 10));
    box->addSubview(*view);
    desktop::setOrigin(*box, { 0, 40 });
    parts();
    view->setBackgroundColor(UIColor::blackColor());
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(30, 30, 10, 10)));
}

TEST_F(AChangeInAView, OutOfTheWindowRedrawsNothing)
{
    const auto view = make<UIView>(CGRectMake(20, 60, 10, 10));
    view->setBackgroundColor(UIColor::blackColor());
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(AChangeInAView, OfItsAlphaRedrawsItOnceForEachNewAlpha)
{
    const auto view = added<UIView>(CGRectMake(10, 10, 20, 20));
    view->setAlpha(0.5);
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 20, 20)));
    view->setAlpha(0.5);
    EXPECT_THAT(parts(), IsEmpty());
}

using ALabel = Redrawing;

TEST_F(ALabel, IsRedrawnWhenItLooksOtherwise)
{
    const auto label = added<UILabel>(CGRectMake(10, 10, 100, 20));
    label->setText("12.0");
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 100, 20)));
    label->setTextColor(UIColor::lightGrayColor());
    EXPECT_THAT(parts(), Not(IsEmpty()));
    label->setFont(UIFont::systemFontOfSize(10));
    EXPECT_THAT(parts(), Not(IsEmpty()));
    label->setTextAlignment(NSTextAlignment::Center);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    EXPECT_EQ(label->text(), "12.0");
    EXPECT_EQ(label->textAlignment(), NSTextAlignment::Center);
}

TEST_F(ALabel, IsNotRedrawnWhenItLooksTheSame)
{
    const auto label = added<UILabel>(CGRectMake(10, 10, 100, 20));
    label->setText("60");
    parts();
    label->setText("60");
    label->setTextColor(UIColor::blackColor());
    label->setFont(label->font());
    label->setTextAlignment(NSTextAlignment::Left);
    EXPECT_THAT(parts(), IsEmpty());
}

using ASliderOnView = Redrawing;

TEST_F(ASliderOnView, IsRedrawnWithItsThumbsShadow)
{
    const auto slider = added<UISlider>(CGRectMake(50, 50, 100, 28));
    slider->setValue(0.5f);
    const auto part = together();
    EXPECT_LE(part.origin.y, 48);
    EXPECT_GE(part.origin.y + part.size.height, 82);
    EXPECT_LT(part.size.height, 60);
}

TEST_F(ASliderOnView, IsRedrawnWhenItsTintChanges)
{
    const auto slider = added<UISlider>(CGRectMake(50, 50, 100, 28));
    slider->setMinimumTrackTintColor(UIColor::blackColor());
    EXPECT_THAT(parts(), Not(IsEmpty()));
    slider->setMinimumTrackTintColor(nullptr);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    // Seen through, the track is not what the platform's own colour makes of it.
    slider->setMinimumTrackTintColor(UIColor::clearColor());
    EXPECT_THAT(parts(), Not(IsEmpty()));
}

TEST_F(ASliderOnView, IsNotRedrawnWhenItLooksTheSame)
{
    const auto slider = added<UISlider>(CGRectMake(50, 50, 100, 28));
    slider->setValue(1);
    slider->setMinimumTrackTintColor(UIColor::blackColor());
    parts();
    slider->setValue(1);
    slider->setValue(5);
    slider->setValue(std::nanf(""));
    slider->setMinimumTrackTintColor(UIColor::colorWithWhiteAlpha(0, 1));
    slider->setMinimumValue(slider->minimumValue());
    slider->setMaximumValue(slider->maximumValue());
    EXPECT_THAT(parts(), IsEmpty());
}

using ASwitchOnView = Redrawing;

TEST_F(ASwitchOnView, IsNotRedrawnWhenItLooksTheSame)
{
    const auto toggle = added<UISwitch>(CGRectMake(50, 50, 51, 31));
    toggle->setOn(true, Animated::No);
    EXPECT_THAT(parts(), Not(IsEmpty()));
    toggle->setOn(true, Animated::No);
    EXPECT_THAT(parts(), IsEmpty());
}

using HighlightingALabel = Redrawing;

TEST_F(HighlightingALabel, RedrawsItWhenItsColorChanges)
{
    const auto label = added<UILabel>(CGRectMake(10, 10, 50, 20));
    label->setHighlighted(true);
    EXPECT_THAT(parts(), IsEmpty());
    label->setHighlightedTextColor(UIColor::whiteColor());
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 50, 20)));
    label->setTextColor(UIColor::yellowColor());
    EXPECT_THAT(parts(), IsEmpty());
    label->setHighlighted(false);
    EXPECT_THAT(parts(), ElementsAre(CGRectMake(10, 10, 50, 20)));
}

} // namespace

} // namespace brimsound::tests
