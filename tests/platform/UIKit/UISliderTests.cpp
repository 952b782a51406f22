#include "platform/desktop/UIKit/ImagePeer.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Controls.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brimsound::tests {

namespace {

using desktop::Pointer;
using desktop::Window;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST(ASliderAtZero, TakesTheSignOfTheZeroThatItIsSetTo)
{
    const auto slider = make<UISlider>();
    slider->setMinimumValue(-12);
    slider->setValue(-0.0f);
    EXPECT_TRUE(std::signbit(slider->value()));
    slider->setValue(0);
    EXPECT_FALSE(std::signbit(slider->value()));
}

TEST(ASlider, RunsFromZeroToOneAtFirst)
{
    const auto slider = make<UISlider>();
    EXPECT_EQ(slider->value(), 0);
    EXPECT_EQ(slider->minimumValue(), 0);
    EXPECT_EQ(slider->maximumValue(), 1);
    EXPECT_FALSE(slider->minimumTrackTintColor());
}

TEST(ASlider, ClampsItsValueToItsRange)
{
    const auto slider = make<UISlider>();
    slider->setMaximumValue(12);
    slider->setMinimumValue(-12);
    slider->setValue(13);
    EXPECT_EQ(slider->value(), 12);
    slider->setValue(-std::numeric_limits<float>::infinity());
    EXPECT_EQ(slider->value(), -12);
    slider->setValue(4.5f);
    EXPECT_EQ(slider->value(), 4.5f);
}

TEST(ASlider, LeavesItsValueWhenItIsToldNoNumber)
{
    const auto slider = make<UISlider>();
    slider->setValue(0.25f);
    slider->setValue(std::nanf(""));
    EXPECT_EQ(slider->value(), 0.25f);
}

TEST(ASlider, TakesItsValueAlongWhenTheRangeLeavesIt)
{
    const auto slider = make<UISlider>();
    slider->setMaximumValue(12);
    slider->setMinimumValue(3);
    EXPECT_EQ(slider->value(), 3);
    slider->setValue(10);
    slider->setMaximumValue(5);
    EXPECT_EQ(slider->value(), 5);
}

TEST(ASlider, RaisesTheMaximumWithAHigherMinimumAndLowersTheMinimumWithALowerMaximum)
{
    const auto slider = make<UISlider>();
    slider->setMinimumValue(4);
    EXPECT_EQ(slider->maximumValue(), 4);
    EXPECT_EQ(slider->value(), 4);
    slider->setMaximumValue(-2);
    EXPECT_EQ(slider->minimumValue(), -2);
    EXPECT_EQ(slider->value(), -2);
}

TEST(ASlider, GivesItsTintBack)
{
    const auto slider = make<UISlider>();
    const auto tint = UIColor::lightGrayColor();
    slider->setMinimumTrackTintColor(tint);
    EXPECT_EQ(slider->minimumTrackTintColor(), tint);
}

/// Draws nothing but knows where the last disc was.
class DiscFinder : public desktop::Canvas {
public:
    CGRect lastDisc;

    void save() override { }
    void restore() override { }
    void translate(double, double) override { }
    void clip(const CGRect&) override { }
    bool showsAnythingIn(const CGRect&) const override { return true; }
    void beginGroup(const CGRect&, double, double) override { }
    void endGroup() override { }
    void fillRect(const CGRect&, const desktop::Color&) override { }
    void fillPixels(const CGRect&, const desktop::Color&) override { }
    void fillRoundedRect(const CGRect&, double, const desktop::Color&) override { }
    void strokeRoundedRect(const CGRect&, double, double, const desktop::Color&) override { }
    void fillEllipse(const CGRect& rect, const desktop::Color&) override { lastDisc = rect; }
    void strokeLine(const std::vector<CGPoint>&, double, const desktop::Color&) override { }
    void drawBitmap(const desktop::Bitmap&, const CGRect&) override { }
    void drawLine(
        const std::string&, const CGRect&, const UIFont&, const desktop::Color&, NSTextAlignment) override
    {
    }
    void drawParagraph(
        const std::string&, const CGRect&, const UIFont&, const desktop::Color&, NSTextAlignment) override
    {
    }
    double hairline() const override { return 1; }
};

TEST(ASlider, DrawsAThumbOfTheSizeThatItTells)
{
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(0, 0, 200, 44));
    slider->setValue(0.3f);
    DiscFinder canvas;
    desktop::drawTree(*slider, canvas);
    ASSERT_NE(slider->currentThumbImage(), nullptr);
    EXPECT_EQ(canvas.lastDisc.size, slider->currentThumbImage()->size());
    const auto centre = desktop::peerOf(*slider).thumbCentre(slider->value());
    EXPECT_DOUBLE_EQ(canvas.lastDisc.origin.x + canvas.lastDisc.size.width / 2, centre.x);
    EXPECT_DOUBLE_EQ(canvas.lastDisc.origin.y + canvas.lastDisc.size.height / 2, centre.y);
}

TEST(ASlider, KeepsItsThumbWithinItsEnds)
{
    const auto slider = make<UISlider>();
    slider->setFrame(CGRectMake(30, 0, 200, 44));
    const double radius = slider->currentThumbImage()->size().width / 2;
    EXPECT_EQ(desktop::peerOf(*slider).thumbCentre(0), (CGPoint { radius, 22 }));
    EXPECT_EQ(desktop::peerOf(*slider).thumbCentre(1), (CGPoint { 200 - radius, 22 }));
}

class ATouchOnASlider : public testing::Test {
protected:
    ATouchOnASlider()
    {
        slider->setMaximumValue(12);
        slider->setMinimumValue(-12);
        slider->setFrame(CGRectMake(13.25, 100, 233, 44));
        window->addSubview(*slider);
        log->listenTo(*slider);
    }

    /// Where the thumb stands for the value, in the window.
    CGPoint thumb(double value) const
    {
        return desktop::convertToWindow(desktop::peerOf(*slider).thumbCentre(value), *slider);
    }

    const RetainPtr<Window> window = make<Window>(CGSize { 320, 480 });
    const RetainPtr<UISlider> slider = make<UISlider>();
    const RetainPtr<EventLog> log = make<EventLog>();
};

TEST_F(ATouchOnASlider, IsNotHeardOfWhenTheValueIsSetInCode)
{
    slider->setValue(3);
    slider->setMinimumValue(5);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(ATouchOnASlider, MovesNothingByItself)
{
    slider->setValue(3);
    for (const double value : { -12.0, 3.0, 3.3, 12.0 }) {
        window->touchDown({ thumb(value), Pointer::Finger });
        window->touchUp(thumb(value));
        EXPECT_EQ(slider->value(), 3) << value;
        EXPECT_THAT(log->take(), ElementsAre("down", "up inside")) << value;
    }
}

TEST_F(ATouchOnASlider, TakesTheThumbAlongFromWhereverItIs)
{
    slider->setValue(3);
    window->touchDown({ thumb(-10), Pointer::Finger });
    window->touchMove(thumb(-8));
    EXPECT_NEAR(slider->value(), 5, 1e-5);
    window->touchMove(thumb(-10));
    EXPECT_NEAR(slider->value(), 3, 1e-5);
}

TEST_F(ATouchOnASlider, SendsItsNewValueBeforeTheDrag)
{
    window->touchDown({ thumb(0), Pointer::Finger });
    window->touchMove(thumb(1));
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside"));
    window->touchMove(thumb(1));
    EXPECT_THAT(log->take(), ElementsAre("drag inside"));
    window->touchMove({ thumb(2).x, 400 });
    EXPECT_THAT(log->take(), ElementsAre("value", "exit", "drag outside"));
    window->touchUp({ thumb(2).x, 400 });
    EXPECT_THAT(log->take(), ElementsAre("up outside"));
}

TEST_F(ATouchOnASlider, StopsAtTheEnds)
{
    window->touchDown({ thumb(0), Pointer::Finger });
    window->touchMove({ 1000, 110 });
    EXPECT_EQ(slider->value(), 12);
    log->take();
    window->touchMove({ 2000, 110 });
    EXPECT_THAT(log->take(), ElementsAre("drag outside"));
    window->touchMove({ -1000, 110 });
    EXPECT_EQ(slider->value(), -12);
}

TEST_F(ATouchOnASlider, ReachesEveryValueExactly)
{
    window->touchDown({ thumb(slider->value()), Pointer::Finger });
    for (int step = -1200; step <= 1200; ++step) {
        const auto value = static_cast<float>(step) / 100;
        window->touchMove(thumb(value));
        EXPECT_EQ(slider->value(), value);
    }
}

TEST_F(ATouchOnASlider, ReachesEveryValueExactlyAtEveryWidth)
{
    window->setFrame(CGRectMake(0, 0, 800, 480));
    for (int step = 0; step < 20; ++step) {
        const double width = 60 + 31.7 * step;
        slider->setFrame(CGRectMake(width / 7, 100, width, 44));
        window->touchDown({ thumb(slider->value()), Pointer::Finger });
        for (const float value : { -11.9f, -4.5f, -0.1f, 0.0f, 0.1f, 1.0f / 3, 7.77f, 12.0f }) {
            window->touchMove(thumb(value));
            EXPECT_EQ(slider->value(), value) << width;
        }
        window->touchUp(thumb(slider->value()));
    }
}

TEST_F(ATouchOnASlider, ThatIsTooNarrowToMoveInMovesNothing)
{
    slider->setFrame(CGRectMake(10, 100, 20, 44));
    slider->setValue(3);
    window->touchDown({ { 15, 110 }, Pointer::Finger });
    window->touchMove({ 200, 110 });
    EXPECT_EQ(slider->value(), 3);
}

using AMousePressOnASlider = ATouchOnASlider;

TEST_F(AMousePressOnASlider, BesideTheThumbBringsItThere)
{
    window->touchDown({ thumb(6), Pointer::Mouse });
    EXPECT_EQ(slider->value(), 6);
    EXPECT_THAT(log->take(), Contains("value"));
    window->touchMove(thumb(7));
    EXPECT_EQ(slider->value(), 7);
}

TEST_F(AMousePressOnASlider, OnTheThumbMovesNothingUntilTheMouseDoes)
{
    const auto press = CGPoint { thumb(0).x + 10, thumb(0).y };
    window->touchDown({ press, Pointer::Mouse });
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log->take(), Not(Contains("value")));
    window->touchMove({ thumb(4).x + 10, press.y });
    EXPECT_EQ(slider->value(), 4);
}

} // namespace

} // namespace brimsound::tests
