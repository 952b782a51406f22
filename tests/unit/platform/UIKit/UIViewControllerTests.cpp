#include "platform/UIKit/UIViewController.h"

#include "platform/desktop/UIKit/Controller.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Sheet.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

TEST(AViewController, MakesItsViewWhenItIsFirstAskedFor)
{
    const auto controller = make<UIViewController>();
    auto& view = controller->view();
    EXPECT_EQ(&controller->view(), &view);
    EXPECT_EQ(view.retainCount(), 1u);
}

TEST(AViewController, TakesAnotherView)
{
    const auto controller = make<UIViewController>();
    const auto view = make<UIView>();
    controller->setView(view);
    EXPECT_EQ(&controller->view(), view.get());
    EXPECT_EQ(view->retainCount(), 2u);
}

/// Counts the layouts that it is told of.
class Counting : public UIViewController {
public:
    void viewDidLayoutSubviews() override { ++layouts; }

    int layouts = 0;
};

TEST(AViewController, IsToldOfEachLayoutOfItsView)
{
    const auto window = make<UIView>();
    auto controller = make<Counting>();
    const auto view = retain(&controller->view());
    window->addSubview(*view);
    window->layoutIfNeeded();
    EXPECT_EQ(controller->layouts, 1);
    window->layoutIfNeeded();
    EXPECT_EQ(controller->layouts, 1);
    view->setFrame(CGRectMake(0, 0, 10, 10));
    window->layoutIfNeeded();
    EXPECT_EQ(controller->layouts, 2);

    controller->setView(nullptr);
    view->setNeedsLayout();
    window->layoutIfNeeded();
    EXPECT_EQ(controller->layouts, 2) << "it is nobody's view now";

    controller->setView(view);
    controller = nullptr;
    view->setNeedsLayout();
    window->layoutIfNeeded();
}

TEST(AViewController, ReleasesItsViewAndMakesANewOneWhenItIsAskedForAgain)
{
    const auto controller = make<UIViewController>();
    const auto view = retain(&controller->view());
    controller->setView(nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
    EXPECT_NE(&controller->view(), view.get());
}

/// Counts the presses of Escape that it is told of.
class EscapeController : public desktop::Controller {
public:
    void escape() override { ++escapes; }

    int escapes = 0;
};

class SheetController : public UIViewController {
public:
    explicit SheetController(EscapeController* controller)
        : UIViewController(desktop::peer(controller))
    {
    }
};

/// A view controller that presents another one in a window.
class AViewControllerThatPresents : public testing::Test {
protected:
    ~AViewControllerThatPresents() override { toolkit::Clock::shared().advance(1); }

    void present(Animated animated, const std::function<void()>& completion = {}) const
    {
        root->presentViewControllerAnimatedCompletion(sheet, animated, completion);
    }
    void dismiss(Animated animated, const std::function<void()>& completion = {}) const
    {
        root->dismissViewControllerAnimatedCompletion(animated, completion);
    }
    UIViewController* presented() const { return desktop::nativeController(*root).presented(); }
    bool pressEscape() const { return window->keyPressed(toolkit::Key::Escape, toolkit::KeyStroke::First); }

    const toolkit::Ref<toolkit::Window> window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    const RetainPtr<UIViewController> root = make<UIViewController>();
    EscapeController* const native = new EscapeController;
    const RetainPtr<UIViewController> sheet = brimsound::make<SheetController>(native);
};

TEST_F(AViewControllerThatPresents, ShowsTheOthersViewOverTheWholeWindow)
{
    present(Animated::No);
    window->layOutAll();
    EXPECT_EQ(presented(), sheet.get());
    EXPECT_EQ(desktop::nativeView(sheet->view()).window(), window.get());
    EXPECT_EQ(sheet->view().frame(), CGRectMake(0, 0, 320, 400));
    EXPECT_EQ(sheet->retainCount(), 3u) << "held by the one that presents and by the sheet";
    dismiss(Animated::No);
    EXPECT_EQ(presented(), nullptr);
    EXPECT_EQ(desktop::nativeView(sheet->view()).window(), nullptr);
    EXPECT_EQ(sheet->retainCount(), 1u);
}

TEST_F(AViewControllerThatPresents, TellsTheOtherOfEscape)
{
    EXPECT_FALSE(pressEscape());
    present(Animated::No);
    EXPECT_TRUE(pressEscape());
    EXPECT_EQ(native->escapes, 1);
    dismiss(Animated::No);
    EXPECT_FALSE(pressEscape());
}

TEST_F(AViewControllerThatPresents, CallsEachCompletionOnce)
{
    int completions = 0;
    const auto count = [&] { ++completions; };
    dismiss(Animated::No, count);
    EXPECT_EQ(completions, 0) << "nothing is presented";
    present(Animated::Yes, count);
    EXPECT_EQ(completions, 1);
    present(Animated::Yes, count);
    EXPECT_EQ(completions, 1) << "something is presented already";
    dismiss(Animated::Yes, count);
    EXPECT_EQ(completions, 2);
}

TEST_F(AViewControllerThatPresents, FadesTheOtherInAndOut)
{
    present(Animated::Yes);
    const auto* shown = desktop::nativeView(sheet->view()).parent();
    EXPECT_LT(shown->alpha(), 1);
    toolkit::Clock::shared().advance(1);
    EXPECT_EQ(shown->alpha(), 1);
    dismiss(Animated::Yes);
    EXPECT_EQ(presented(), nullptr);
    EXPECT_EQ(desktop::nativeView(sheet->view()).window(), window.get()) << "it still fades";
    toolkit::Clock::shared().advance(1);
    EXPECT_EQ(desktop::nativeView(sheet->view()).window(), nullptr);
}

} // namespace

} // namespace brimsound::tests
