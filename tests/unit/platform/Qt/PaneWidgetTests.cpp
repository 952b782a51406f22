#include "platform/desktop/Qt/PaneWidget.h"
#include "platform/desktop/Qt/Snapshot.h"

#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/UIKit/Screen.h"
#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/control/Slider.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QUrl>
#include <QWheelEvent>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::PaneWidget;
using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Color, toolkit::Font, toolkit::make, toolkit::makeRect, toolkit::Ref, toolkit::Size,
    toolkit::Slider;
using toolkit::TextField, toolkit::View, toolkit::Window;

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
        window->add(*button);
        log.listenTo(*button);
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

    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<toolkit::Control> button = make<toolkit::Control>(makeRect(50, 50, 40, 40));
    EventLog log;
    PaneWidget widget { *window };
};

TEST_F(APaneWidget, IsAsLargeAsItsWindowAndKeepsItSo)
{
    EXPECT_EQ(widget.size(), QSize(320, 400));
    widget.resize(500, 300);
    EXPECT_EQ(window->bounds().size, (Size { 500, 300 }));
}

TEST_F(APaneWidget, PaintsTheWindow)
{
    window->setBackground(Color { 1, 0, 0 });
    button->setBackground(Color {});
    const auto picture = widget.grab().toImage();
    EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(60, 60), QColor(Qt::black));
}

TEST_F(APaneWidget, TellsTheScaleThatItIsShownAtWhenItPaints)
{
    desktop::setScreenScale(3);
    widget.grab();
    EXPECT_EQ(UIScreen::mainScreen().scale(), widget.devicePixelRatioF());
    desktop::setScreenScale(2);
}

TEST_F(APaneWidget, HandsTheMouseOn)
{
    press(inside);
    move(outside);
    release(outside);
    EXPECT_THAT(log.take(), ElementsAre("down", "exit", "drag outside", "up outside"));
}

TEST_F(APaneWidget, HandsADoubleClickOn)
{
    class Clicked : public toolkit::Control {
    public:
        using Control::Control;
        void touchBegan(const toolkit::Touch& touch) override { doubleClicks.push_back(touch.isDoubleClick); }
        std::vector<bool> doubleClicks;
    };
    const auto clicked = make<Clicked>(makeRect(50, 50, 40, 40));
    window->add(*clicked);
    press(inside);
    release(inside);
    mouse(QEvent::MouseButtonDblClick, inside);
    release(inside);
    EXPECT_THAT(clicked->doubleClicks, ElementsAre(false, true));
}

TEST_F(APaneWidget, HandsTheLeftButtonOnOnly)
{
    mouse(QEvent::MouseButtonPress, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    mouse(QEvent::MouseMove, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, inside, Qt::MouseEventNotSynthesized, Qt::RightButton);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(APaneWidget, HandsAFingerOn)
{
    fingers().press(4, inside);
    fingers().move(4, { 65, 60 });
    fingers().release(4, { 65, 60 });
    EXPECT_THAT(log.take(), ElementsAre("down", "drag inside", "up inside"));
}

TEST_F(APaneWidget, DropsMouseEventsThatWereMadeUpFromAFinger)
{
    for (const auto source : { Qt::MouseEventSynthesizedByQt, Qt::MouseEventSynthesizedBySystem }) {
        mouse(QEvent::MouseButtonPress, inside, source);
        mouse(QEvent::MouseMove, inside, source);
        mouse(QEvent::MouseButtonRelease, inside, source);
    }
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(APaneWidget, IgnoresASecondFinger)
{
    fingers().press(1, inside);
    fingers().stationary(1).press(2, outside);
    fingers().stationary(1).move(2, inside);
    fingers().stationary(1).release(2, inside);
    EXPECT_THAT(log.take(), ElementsAre("down"));
    fingers().release(1, inside);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, IgnoresTheMouseWhileAFingerIsDown)
{
    fingers().press(1, inside);
    press(outside);
    move(outside);
    release(outside);
    EXPECT_THAT(log.take(), ElementsAre("down"));
    fingers().release(1, inside);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, IgnoresAFingerWhileTheMouseIsDown)
{
    press(inside);
    fingers().press(1, outside);
    fingers().move(1, { 310, 300 });
    fingers().release(1, outside);
    EXPECT_THAT(log.take(), ElementsAre("down"));
    release(inside);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(APaneWidget, CancelsTheTouchThatIsTakenAwayAndTakesTheNext)
{
    fingers().press(1, inside);
    QTouchEvent cancel(QEvent::TouchCancel, &touchScreen());
    QApplication::sendEvent(&widget, &cancel);
    EXPECT_THAT(log.take(), ElementsAre("down", "cancel"));
    fingers().release(1, inside);
    fingers().press(2, inside);
    fingers().release(2, inside);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
}

TEST_F(APaneWidget, CancelsTheTouchWhenItIsHidden)
{
    press(inside);
    widget.hide();
    EXPECT_THAT(log.take(), ElementsAre("down", "cancel"));
    press(inside);
    release(inside);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
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

/// A slider from -12 to 12 that has the keyboard, in a widget that is fed keys as Qt does it.
class AKeyInAPaneWidget : public testing::Test {
protected:
    AKeyInAPaneWidget()
    {
        slider->setMaximum(12);
        slider->setMinimum(-12);
        slider->setValue(0);
        slider->setSteps({ .small = 0.1, .large = 1, .neutral = 0 });
        slider->setFrame(makeRect(35, 50, 250, 44));
        window->add(*slider);
        log.listenTo(*slider);
        widget.show();
    }

    void key(QEvent::Type type, int code, bool isRepeat = false, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(type, code, modifiers, QString(), isRepeat);
        QApplication::sendEvent(&widget, &event);
    }
    float valueAfter(Qt::Key code, Qt::KeyboardModifiers modifiers = {})
    {
        key(QEvent::KeyPress, code, false, modifiers);
        key(QEvent::KeyRelease, code, false, modifiers);
        return slider->value();
    }

    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<Slider> slider = make<Slider>();
    EventLog log;
    PaneWidget widget { *window };
};

TEST_F(AKeyInAPaneWidget, IsHandedOn)
{
    valueAfter(Qt::Key_Tab);
    EXPECT_EQ(window->focus().view(), slider.get());
    EXPECT_EQ(valueAfter(Qt::Key_Up), 0.1f);
    EXPECT_EQ(valueAfter(Qt::Key_Down), 0.0f);
    EXPECT_EQ(valueAfter(Qt::Key_Right), 0.1f);
    EXPECT_EQ(valueAfter(Qt::Key_Left), 0.0f);
    EXPECT_EQ(valueAfter(Qt::Key_PageUp), 1);
    EXPECT_EQ(valueAfter(Qt::Key_PageDown), 0);
    EXPECT_EQ(valueAfter(Qt::Key_End), 12);
    EXPECT_EQ(valueAfter(Qt::Key_Home), -12);
    EXPECT_EQ(valueAfter(Qt::Key_0, Qt::ControlModifier), -12) << "a shortcut, not the key alone";
    EXPECT_EQ(valueAfter(Qt::Key_0), 0);
}

TEST_F(AKeyInAPaneWidget, IsHeldUntilItIsReallyReleased)
{
    valueAfter(Qt::Key_Tab);
    key(QEvent::KeyPress, Qt::Key_Right);
    log.take();
    key(QEvent::KeyRelease, Qt::Key_Right, true);
    key(QEvent::KeyPress, Qt::Key_Right, true);
    EXPECT_THAT(log.take(), ElementsAre("value", "drag inside"));
    key(QEvent::KeyRelease, Qt::Key_Right);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AKeyInAPaneWidget, IsLetGoOfWhenTheWidgetLosesTheKeyboard)
{
    valueAfter(Qt::Key_Tab);
    key(QEvent::KeyPress, Qt::Key_Right);
    log.take();
    QFocusEvent event(QEvent::FocusOut);
    QApplication::sendEvent(&widget, &event);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

/// A name field on a white strip, shown by a widget in a window that has the keyboard.
class AFieldInAPaneWidget : public testing::Test {
protected:
    AFieldInAPaneWidget()
    {
        window->setBackground(Color {});
        strip->setBackground(Color { 1, 1, 1 });
        field->setFont(Font { "HelveticaNeue-Bold", 18 });
        field->onReturn = [this] {
            confirmed.push_back(field->text());
            window->focus().takeFrom(*field);
        };
        window->add(*strip);
        strip->add(*field);
        widget.show();
        widget.activateWindow();
        widget.setFocus();
        // No blinking caret in pictures.
        QApplication::setCursorFlashTime(0);
    }
    ~AFieldInAPaneWidget() override { toolkit::Clock::shared().advance(1); }

    /// What the user works with while the field is edited; null when it is not.
    QLineEdit* editor()
    {
        QApplication::processEvents();
        return widget.findChild<QLineEdit*>();
    }
    void click(QPoint at) { QTest::mouseClick(&widget, Qt::LeftButton, {}, at); }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    /// The texts that the return key was pressed for.
    std::vector<std::string> confirmed;
    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<View> strip = make<View>(makeRect(44, 44, 232, 44));
    const Ref<TextField> field = make<TextField>(makeRect(20, 8, 192, 28));
    PaneWidget widget { *window };
};

TEST_F(AFieldInAPaneWidget, HasAnEditorWhileItIsTheFirstResponder)
{
    EXPECT_EQ(editor(), nullptr);
    field->setText("Rock");
    click({ 100, 66 });
    ASSERT_TRUE(editor());
    EXPECT_EQ(QApplication::focusWidget(), editor());
    EXPECT_EQ(editor()->text(), "Rock");
    // Over the text, with the editor's own margin at either side.
    const auto width = field->textArea().size.width;
    EXPECT_EQ(editor()->geometry(), QRectF(62, 52, width + 4, 28).toRect());
    window->focus().takeFrom(*field);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &widget);
}

TEST_F(AFieldInAPaneWidget, HasAnEditorWithTheTextAtTheSideWhereItIsDrawn)
{
    // Qt would otherwise place texts at the side where their own direction starts.
    window->focus().giveTo(*field);
    EXPECT_EQ(editor()->alignment(), Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);

    const auto mirrored = make<Window>(Size { 320, 400 }, toolkit::LayoutDirection::RightToLeft);
    PaneWidget mirroredWidget(*mirrored);
    mirrored->add(*strip);
    mirrored->focus().giveTo(*field);
    QApplication::processEvents();
    const auto* mirroredEditor = mirroredWidget.findChild<QLineEdit*>();
    ASSERT_TRUE(mirroredEditor);
    EXPECT_EQ(mirroredEditor->alignment(), Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    // Over the text, with the editor's own margin at either side.
    const auto width = field->textArea().size.width;
    EXPECT_EQ(mirroredEditor->geometry(), QRectF(44 + 20 + 192 - width - 2, 52, width + 4, 28).toRect());
    mirrored->focus().takeFrom(*field);
    QApplication::processEvents();
}

TEST_F(AFieldInAPaneWidget, HasEachChangeOfTheEditor)
{
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    type("Rock");
    EXPECT_EQ(field->text(), "Rock");
    press(Qt::Key_Backspace);
    EXPECT_EQ(field->text(), "Roc");
    press(Qt::Key_Home);
    type("a ");
    EXPECT_EQ(field->text(), "a Roc");
    editor()->setText(QString::fromUtf8("\U0001F3B8"));
    EXPECT_EQ(field->text(), "\U0001F3B8");
    editor()->setText(QString(10000, 'm'));
    EXPECT_EQ(field->text(), std::string(10000, 'm'));
}

TEST_F(AFieldInAPaneWidget, HandsItsOwnChangesToTheEditor)
{
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    field->setText("Jazz");
    widget.grab();
    EXPECT_EQ(editor()->text(), "Jazz");
}

TEST_F(AFieldInAPaneWidget, IsTypedIntoBeforeTheEditorIsThere)
{
    window->focus().giveTo(*field);
    QTest::keyClicks(&widget, "R o");
    EXPECT_EQ(field->text(), "R o");
    EXPECT_EQ(editor()->text(), "R o");
}

TEST_F(AFieldInAPaneWidget, HasReturnFromTheEditor)
{
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    type("Rock");
    press(Qt::Key_Return);
    EXPECT_THAT(confirmed, ElementsAre("Rock"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(AFieldInAPaneWidget, IsConfirmedWithTheMouseAlone)
{
    field->setReturnTitle("Done");
    click({ 100, 66 });
    ASSERT_TRUE(editor());
    type("Rock");
    const QPoint key(250, 66);
    EXPECT_EQ(widget.childAt(key), nullptr) << "the editor leaves the key free";
    QTest::mousePress(&widget, Qt::LeftButton, {}, key);
    EXPECT_EQ(QApplication::focusWidget(), editor());
    EXPECT_THAT(confirmed, testing::IsEmpty());
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, key);
    EXPECT_THAT(confirmed, ElementsAre("Rock"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(AFieldInAPaneWidget, KeepsTheKeyboardWhenSomethingElseIsClicked)
{
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    click({ 10, 300 });
    EXPECT_EQ(QApplication::focusWidget(), editor());
}

TEST_F(AFieldInAPaneWidget, LosesItsEditorWhenItLeavesTheWindow)
{
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    strip->removeFromParent();
    EXPECT_EQ(editor(), nullptr);
}

/// The dark pixels of the part of the picture.
int darkPixelsIn(const QImage& picture, QRect part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            count += qGray(picture.pixel(x, y)) < 128;
    }
    return count;
}

TEST_F(AFieldInAPaneWidget, IsDrawnOnceByWhoeverHasToAndIsInEveryPicture)
{
    const QRect place(64, 52, 96, 28); // Without the return key at its end.
    field->setText("Rock");
    const int alone = darkPixelsIn(widget.grab().toImage(), place);
    EXPECT_GT(alone, 100);
    window->focus().giveTo(*field);
    ASSERT_TRUE(editor());
    editor()->setReadOnly(true); // Without a caret.
    EXPECT_NEAR(darkPixelsIn(widget.grab().toImage(), place), alone, 0.1 * alone);
    EXPECT_NEAR(darkPixelsIn(desktop::pictureOf(*window, 1), place), alone, 0.1 * alone);
    editor()->hide();
    EXPECT_EQ(darkPixelsIn(widget.grab().toImage(), place), 0);
}

TEST_F(AFieldInAPaneWidget, DrawsItselfWhileItMoves)
{
    const QRect place(64, 52, 96, 28); // Without the return key at its end.
    field->setText("Rock");
    strip->setAlpha(0);
    window->focus().giveTo(*field);
    View::animate(0.2, [&] { strip->setAlpha(1); });
    widget.grab();
    ASSERT_TRUE(editor());
    EXPECT_EQ(darkPixelsIn(widget.grab().toImage(), place), 96 * 28);
    toolkit::Clock::shared().advance(0.15);
    const int fading = darkPixelsIn(widget.grab().toImage(), place);
    EXPECT_GT(fading, 100);
    EXPECT_LT(fading, 1000);
    toolkit::Clock::shared().advance(0.1);
    editor()->hide();
    EXPECT_EQ(darkPixelsIn(widget.grab().toImage(), place), 0);
}

/// A drag that proposes to move what the data names.
class ADrag : public APaneWidget {
protected:
    /// The action that the widget takes; Qt::IgnoreAction when nothing can be dropped.
    Qt::DropAction enter()
    {
        QDragEnterEvent event(inside, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&widget, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    Qt::DropAction drop()
    {
        QDropEvent event(inside, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&widget, &event);
        return event.dropAction();
    }

    void acceptFiles()
    {
        widget.onFilesDropped = [this](const auto& files) { dropped = files; };
    }

    static constexpr Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QMimeData data;
    std::vector<std::filesystem::path> dropped;
};

TEST_F(ADrag, HandsTheLocalFilesOnAndCopiesThem)
{
    acceptFiles();
    data.setUrls({ QUrl::fromLocalFile("/tmp/a b.txt"), QUrl("https://example.com/c.txt"),
        QUrl::fromLocalFile("/tmp/\xc3\xa9.eqf") });
    EXPECT_EQ(enter(), Qt::CopyAction);
    EXPECT_EQ(drop(), Qt::CopyAction);
    EXPECT_THAT(dropped, ElementsAre("/tmp/a b.txt", "/tmp/\xc3\xa9.eqf"));
}

TEST_F(ADrag, IsRefusedWithoutALocalFile)
{
    acceptFiles();
    data.setUrls({ QUrl("https://example.com/c.txt") });
    EXPECT_EQ(enter(), Qt::IgnoreAction);
    data.setUrls({});
    data.setText("/tmp/a.txt");
    EXPECT_EQ(enter(), Qt::IgnoreAction);
}

TEST_F(ADrag, IsRefusedWhenNothingTakesFiles)
{
    data.setUrls({ QUrl::fromLocalFile("/tmp/a.txt") });
    EXPECT_EQ(enter(), Qt::IgnoreAction);
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
    toolkit::Clock::shared().advance(1);
    EXPECT_EQ(list.offset(), 65) << "a touchpad's momentum is part of its events";
}

} // namespace

} // namespace brimsound::tests
