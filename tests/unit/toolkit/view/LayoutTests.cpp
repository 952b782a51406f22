#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/window/Window.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

using toolkit::make;
using toolkit::makeRect;
using toolkit::Ref;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

class CountingView : public View {
public:
    using View::View;

    void layOut() override { ++layouts; }

    int layouts = 0;
};

/// A view in a window that was laid out once. Counts the layouts after that.
class ALayout : public testing::Test {
protected:
    ALayout()
    {
        window->add(*view);
        window->layOutAll();
        view->layouts = 0;
    }

    const Ref<Window> window = make<Window>(Size { 100, 100 });
    const Ref<CountingView> view = make<CountingView>(makeRect(0, 0, 50, 50));
};

TEST_F(ALayout, RunsOnceAfterTheSizeChanged)
{
    view->setFrame(makeRect(0, 0, 60, 60));
    view->setFrame(makeRect(0, 0, 70, 70));
    EXPECT_EQ(view->layouts, 0);
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, DoesNotRunWhenAViewMovesOrStays)
{
    view->setFrame(makeRect(20, 20, 50, 50));
    view->setFrame(makeRect(20, 20, 50, 50));
    window->layOutAll();
    EXPECT_EQ(view->layouts, 0);
}

TEST_F(ALayout, RunsOnceHoweverOftenItIsAskedFor)
{
    view->setNeedsLayout();
    view->setNeedsLayout();
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, RunsWhenAChildIsAdded)
{
    view->add(*make<View>());
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, RunsWhenTheOriginChanges)
{
    view->setOrigin({ 0, 10 });
    view->setOrigin({ 0, 10 });
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
    view->setOrigin({ 0, 10 });
    window->layOutAll();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, IncludesTheChildrenThatItResizes)
{
    class Filling : public View {
    public:
        void layOut() override
        {
            for (const auto& child : children())
                child->setFrame(bounds());
        }
    };
    const auto outer = make<Filling>();
    window->add(*outer);
    outer->add(*view);
    outer->setFrame(makeRect(0, 0, 30, 30));
    window->layOutAll();
    EXPECT_EQ(view->frame(), makeRect(0, 0, 30, 30));
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, MayRemoveTheViewItself)
{
    class Leaving : public View {
    public:
        void layOut() override { removeFromParent(); }
    };
    const auto outer = make<View>();
    window->add(*outer);
    outer->add(*make<Leaving>());
    outer->add(*view);
    view->setNeedsLayout();
    window->layOutAll();
    EXPECT_EQ(outer->children().size(), 1u);
    EXPECT_EQ(view->layouts, 1);
}

} // namespace

} // namespace brimsound::tests
