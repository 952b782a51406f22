#include "platform/UIKit/UIViewController.h"

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

TEST(AViewController, LetsGoOfItsViewAndMakesANewOneForWhoeverAsks)
{
    const auto controller = make<UIViewController>();
    const auto view = retain(&controller->view());
    controller->setView(nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
    EXPECT_NE(&controller->view(), view.get());
}

} // namespace

} // namespace brimsound::tests
