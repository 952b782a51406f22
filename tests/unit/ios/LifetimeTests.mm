// Native objects and the product's have the same lifetime, and nothing is retained longer than it is used.
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISlider.h"
#include "platform/ios/Foundation/Peer.h"
#include "tests/unit/settings/Pane.h"
#include "tests/unit/settings/PresetPane.h"

#import <UIKit/UIKit.h>

#include <gmock/gmock.h>

#include <functional>

namespace brimsound::tests {

namespace {

class LivingTogether : public testing::Test {
protected:
    /// Runs a turn of the main loop, at the end of which autoreleased objects are released.
    static void inOneTurn(const std::function<void()>& turn)
    {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        turn();
        [pool release];
    }

    TestPlatform platform;
};

/// Counts its instances.
class Counted : public UIView {
public:
    Counted() { ++alive; }

    static inline int alive = 0;

protected:
    ~Counted() override { --alive; }
};

TEST_F(LivingTogether, ANewObjectHasOneReference)
{
    inOneTurn([] {
        const auto view = make<UIView>();
        EXPECT_EQ([ios::nativeOf(*view) retainCount], 1u);
        EXPECT_EQ(view->retainCount(), 1u);
    });
}

TEST_F(LivingTogether, ANativeReferenceKeepsTheObject)
{
    ::UIView* native = nil;
    inOneTurn([&] {
        const auto view = make<Counted>();
        native = [ios::nativeOf(*view) retain];
    });
    EXPECT_EQ(Counted::alive, 1);
    [native release];
    EXPECT_EQ(Counted::alive, 0);
}

TEST_F(LivingTogether, ASuperviewKeepsTheObject)
{
    const auto superview = make<UIView>();
    inOneTurn([&] { superview->addSubview(*make<Counted>()); });
    EXPECT_EQ(Counted::alive, 1);
    inOneTurn([&] { superview->subviews().front()->removeFromSuperview(); });
    EXPECT_EQ(Counted::alive, 0);
}

TEST_F(LivingTogether, ANativeObjectAlwaysHasTheSameObject)
{
    inOneTurn([] {
        UILabel* first = ios::objectOf<UILabel>([[[::UILabel alloc] init] autorelease]);
        EXPECT_EQ(ios::objectOf<UILabel>(ios::nativeOf(*first)), first);
    });
}

TEST_F(LivingTogether, AReturnedObjectIsNotRetained)
{
    inOneTurn([] {
        const auto view = make<UIView>();
        const auto subview = make<UIView>();
        view->addSubview(*subview);
        inOneTurn([&] {
            EXPECT_EQ(subview->superview(), view.get());
            EXPECT_EQ(view->subviews().size(), 1u);
            EXPECT_EQ(view->viewWithTag(0), view.get());
        });
        EXPECT_EQ(view->retainCount(), 1u);
        EXPECT_EQ(subview->retainCount(), 2u);
    });
}

TEST_F(LivingTogether, ATargetIsNotRetained)
{
    inOneTurn([&] {
        const auto controller = openController();
        const auto slider = make<UISlider>();
        std::size_t before = 0;
        inOneTurn([&] { before = controller->retainCount(); });
        inOneTurn([&] {
            slider->addTargetActionForControlEvents(*controller, "sliderChanged:", UIControlEventTouchDown);
        });
        EXPECT_EQ(controller->retainCount(), before);
    });
}

TEST_F(LivingTogether, APaneThatClosesLeavesNothingBehind)
{
    id center = nil;
    inOneTurn([&] {
        const Pane pane(platform);
        pane.touch(1);
        pane.drag(1, 6);
        pane.lift(1);
        center = [ios::nativeOf(*pane.controller().center()) retain];
    });
    EXPECT_EQ(_activeController, nullptr);
    EXPECT_EQ([center retainCount], 1u) << "only this test's reference is left";
    [center release];
}

TEST_F(LivingTogether, AnAlertAnsweredAfterThePaneIsClosedRestartsNothing)
{
    inOneTurn([] { openController()->setEnabled(false); });
    EXPECT_EQ(_activeController, nullptr) << "the alert does not retain it";
    platform.takeTrace();
    inOneTurn([&] { EXPECT_TRUE(platform.answerAlert(1)); });
    EXPECT_THAT(platform.takeTrace(), testing::IsEmpty());
}

TEST_F(LivingTogether, AMailIsDismissedAfterThePaneIsClosed)
{
    inOneTurn([&] {
        const auto controller = openController();
        controller->reportIssue(*controller->specifiers().front());
    });
    EXPECT_TRUE(platform.composedMail());
    inOneTurn([&] { platform.cancelMail(); });
    EXPECT_FALSE(platform.composedMail());
    EXPECT_EQ(_activeController, nullptr) << "the composer retained it until now";
}

TEST_F(LivingTogether, APaneThatShowedPresetsLeavesTheirCycleAlone)
{
    BrimsoundSettingsListController* controller = nullptr;
    inOneTurn([&] {
        const auto opened = openController();
        platform.showInWindow(opened->table(), { 320, 568 });
        opened->showPresets();
        platform.passTime(1);
        opened->saver()->hideEverything();
        platform.passTime(1);
        controller = opened.get();
        inOneTurn([&] { opened->table().removeFromSuperview(); });
    });
    ASSERT_EQ(_activeController, controller);
    EXPECT_EQ(controller->retainCount(), 1u) << "the panel's";
    // Its root view retains the panel only while it exists.
    inOneTurn([&] { controller->saver()->setDelegate(nullptr); });
    EXPECT_EQ(_activeController, nullptr);
}

TEST_F(LivingTogether, ColorsAreCountedAsBefore)
{
    id black = [::UIColor blackColor];
    const auto before = [black retainCount];
    inOneTurn([&] {
        PresetPane pane(platform);
        pane.showPresets();
        pane.choose("Rock");
    });
    EXPECT_EQ([black retainCount], before);
}

} // namespace

} // namespace brimsound::tests
