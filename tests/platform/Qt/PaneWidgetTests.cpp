#include "platform/desktop/Qt/PaneWidget.h"

#include "tests/platform/UIKit/Controls.h"
#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Lists.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::PaneWidget;
using testing::ElementsAre;
using testing::IsEmpty;

QPointingDevice& touchScreen()
{
    static QPointingDevice& device = *QTest::createTouchDevice();
    return device;
}

/// A window with a button, shown by a widget that is fed as Qt does it.
class APaneWidget : public testing::Test {
protected:
    APaneWidget()
    {
        window->addSubview(*button);
        log->listenTo(*button);
        widget.show();
    }

    void mouse(QEvent::Type type, QPointF at, Qt::MouseEventSource source = Qt::MouseEventNotSynthesized,
        Qt::MouseButton button_ = Qt::LeftButton)
    {
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button_;
        QMouseEvent event(type, at, at, at, type == QEvent::MouseMove ? Qt::NoButton : button_, held,
            Qt::NoModifier, source);
        QApplication::sendEvent(&widget, &event);
    }
    void press(QPointF at) { mouse(QEvent::MouseButtonPress, at); }
    void move(QPointF at) { mouse(QEvent::MouseMove, at); }
    void release(QPointF at) { mouse(QEvent::MouseButtonRelease, at); }

    // Ends as one touch event.
    QTest::QTouchEventWidgetSequence fingers() { return QTest::touchEvent(&widget, &touchScreen()); }

    static constexpr QPoint inside { 60, 60 };
    static constexpr QPoint outside { 300, 300 };

    const RetainPtr<desktop::Window> window = make<desktop::Window>(CGSize { 320, 400 });
    const RetainPtr<Button> button = make<Button>(CGRectMake(50, 50, 40, 40));
    const RetainPtr<EventLog> log = make<EventLog>();
    PaneWidget widget { *window };
};

TEST_F(APaneWidget, IsAsLargeAsItsWindowAndKeepsItSo)
{
    EXPECT_EQ(widget.size(), QSize(320, 400));
    widget.resize(500, 300);
    EXPECT_EQ(window->bounds().size, (CGSize { 500, 300 }));
}

TEST_F(APaneWidget, PaintsTheWindow)
{
    window->setBackgroundColor(UIColor::colorWithRedGreenBlueAlpha(1, 0, 0, 1));
    button->setBackgroundColor(UIColor::blackColor());
    const auto picture = widget.grab().toImage();
    EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(60, 60), QColor(Qt::black));
}

TEST_F(APaneWidget, HandsTheMouseOn)
{
    press(inside);
    move(outside);
    release(outside);
    EXPECT_THAT(log->take(), ElementsAre("down", "exit", "drag outside", "up outside"));
}

TEST_F(APaneWidget, HandsTheLeftButtonOnOnly)
{
    mouse(QEvent::MouseButtonPress, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    mouse(QEvent::MouseMove, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(APaneWidget, HandsAFingerOn)
{
    fingers().press(4, inside);
    fingers().move(4, { 65, 60 });
    fingers().release(4, { 65, 60 });
    EXPECT_THAT(log->take(), ElementsAre("down", "drag inside", "up inside"));
}

TEST_F(APaneWidget, DropsMouseEventsThatWereMadeUpFromAFinger)
{
    for (const auto source : { Qt::MouseEventSynthesizedByQt, Qt::MouseEventSynthesizedBySystem }) {
        mouse(QEvent::MouseButtonPress, inside, source);
        mouse(QEvent::MouseMove, inside, source);
        mouse(QEvent::MouseButtonRelease, inside, source);
    }
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(APaneWidget, IgnoresASecondFinger)
{
    fingers().press(1, inside);
    fingers().stationary(1).press(2, outside);
    fingers().stationary(1).move(2, inside);
    fingers().stationary(1).release(2, inside);
    EXPECT_THAT(log->take(), ElementsAre("down"));
    fingers().release(1, inside);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, IgnoresTheMouseWhileAFingerIsDown)
{
    fingers().press(1, inside);
    press(outside);
    move(outside);
    release(outside);
    EXPECT_THAT(log->take(), ElementsAre("down"));
    fingers().release(1, inside);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, IgnoresAFingerWhileTheMouseIsDown)
{
    press(inside);
    fingers().press(1, outside);
    fingers().move(1, { 310, 300 });
    fingers().release(1, outside);
    EXPECT_THAT(log->take(), ElementsAre("down"));
    release(inside);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, CancelsTheTouchThatIsTakenAwayAndTakesTheNext)
{
    fingers().press(1, inside);
    QTouchEvent cancel(QEvent::TouchCancel, &touchScreen());
    QApplication::sendEvent(&widget, &cancel);
    EXPECT_THAT(log->take(), ElementsAre("down", "cancel"));
    fingers().release(1, inside);
    fingers().press(2, inside);
    fingers().release(2, inside);
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
}

TEST_F(APaneWidget, CancelsTheTouchWhenItIsHidden)
{
    press(inside);
    widget.hide();
    EXPECT_THAT(log->take(), ElementsAre("down", "cancel"));
    press(inside);
    release(inside);
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
}

TEST_F(APaneWidget, LeavesTheWindowInPeaceWhenItIsGone)
{
    {
        const PaneWidget other(*window);
        EXPECT_TRUE(window->onInvalidate);
    }
    EXPECT_FALSE(window->onInvalidate);
    button->setHidden(true);
}

TEST(AWheelOverAPaneWidget, ScrollsSixtyPointsANotchAndPixelForPixelOnATouchpad)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, { 320, 400 });
    PaneWidget widget(*list.window);
    const auto wheel = [&](QPoint pixels, QPoint angle) {
        QWheelEvent event({ 100, 100 }, { 100, 100 }, pixels, angle, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    };
    wheel({}, { 0, -120 });
    EXPECT_EQ(list.offset(), 60);
    wheel({}, { 0, -60 });
    EXPECT_EQ(list.offset(), 90);
    wheel({ 0, 25 }, { 0, 120 });
    EXPECT_EQ(list.offset(), 65);
}

} // namespace

} // namespace brimsound::tests
