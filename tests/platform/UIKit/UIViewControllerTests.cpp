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
