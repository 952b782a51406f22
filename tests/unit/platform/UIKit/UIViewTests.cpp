#include "platform/UIKit/UILabel.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "tests/unit/platform/UIKit/Geometry.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::nativeView;
using testing::ElementsAre;
using testing::IsEmpty;

/// Notes that it was destroyed.
class NotingView : public UIView {
public:
    explicit NotingView(bool& isGone)
        : _isGone(isGone)
    {
    }

protected:
    ~NotingView() override { _isGone = true; }

private:
    bool& _isGone;
};

TEST(AUIView, IsAsItsToolkitViewIs)
{
    const auto view = make<UIView>(CGRectMake(10.5, 20, 30, 40));
    EXPECT_EQ(nativeView(*view).frame(), toolkit::makeRect(10.5, 20, 30, 40));
    EXPECT_EQ(view->frame(), CGRectMake(10.5, 20, 30, 40));
    view->setFrame(CGRectMake(1, 2, 3, 4));
    nativeView(*view).setOrigin({ 0, 7 });
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(view->bounds(), CGRectMake(0, 7, 3, 4));

    view->setAlpha(0.5);
    EXPECT_EQ(view->alpha(), 0.5);
    EXPECT_EQ(nativeView(*view).alpha(), 0.5);
    view->setHidden(true);
    EXPECT_TRUE(view->isHidden());
    EXPECT_TRUE(nativeView(*view).isHidden());
    view->setClipsToBounds(true);
    EXPECT_TRUE(view->clipsToBounds());
    EXPECT_TRUE(nativeView(*view).clips());
    view->setUserInteractionEnabled(false);
    EXPECT_FALSE(view->isUserInteractionEnabled());
    EXPECT_FALSE(nativeView(*view).isInteractive());
}

TEST(AUIView, IsVisibleAndOpaqueAtFirst)
{
    const auto view = make<UIView>();
    EXPECT_EQ(view->alpha(), 1);
    EXPECT_FALSE(view->isHidden());
    EXPECT_FALSE(view->clipsToBounds());
    EXPECT_TRUE(view->isUserInteractionEnabled());
    EXPECT_FALSE(view->backgroundColor());
    EXPECT_EQ(view->superview(), nullptr);
    EXPECT_THAT(view->subviews(), IsEmpty());
    EXPECT_EQ(view->tag(), 0);
    EXPECT_EQ(view->layer().cornerRadius(), 0);
}

TEST(AUIView, KeepsTheColorObjectOfItsBackground)
{
    const auto view = make<UIView>();
    const auto color = UIColor::colorWithRedGreenBlueAlpha(0.25, 0.5, 0.75, 1);
    view->setBackgroundColor(color);
    EXPECT_EQ(view->backgroundColor(), color);
    EXPECT_EQ(nativeView(*view).background(), (toolkit::Color { 0.25, 0.5, 0.75, 1 }));
    view->setBackgroundColor(nullptr);
    EXPECT_FALSE(view->backgroundColor());
    EXPECT_EQ(nativeView(*view).background(), std::nullopt);
}

TEST(AUIView, HasALayerWithItsCornerRadius)
{
    const auto view = make<UIView>();
    view->layer().setCornerRadius(20);
    EXPECT_EQ(view->layer().cornerRadius(), 20);
    EXPECT_EQ(nativeView(*view).cornerRadius(), 20);
}

TEST(AUIView, FollowsItsSuperviewByItsAutoresizingMask)
{
    const auto superview = make<UIView>(CGRectMake(0, 0, 100, 100));
    const auto view = make<UIView>(CGRectMake(10, 20, 30, 40));
    superview->addSubview(*view);
    EXPECT_EQ(view->autoresizingMask(), UIViewAutoresizingNone);
    for (const auto mask : { UIViewAutoresizingFlexibleWidth, UIViewAutoresizingFlexibleHeight,
             UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight }) {
        view->setAutoresizingMask(mask);
        EXPECT_EQ(view->autoresizingMask(), mask);
    }
    view->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
    superview->setFrame(CGRectMake(0, 0, 110, 120));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, 40, 40));
}

TEST(ASubview, IsTheObjectThatWasAdded)
{
    const auto superview = make<UIView>();
    const auto a = make<UIView>();
    const auto b = make<UILabel>();
    superview->addSubview(*a);
    superview->addSubview(*b);
    EXPECT_THAT(superview->subviews(), ElementsAre(a, b));
    EXPECT_EQ(a->superview(), superview.get());
    EXPECT_EQ(a->retainCount(), 2u);
    a->removeFromSuperview();
    EXPECT_THAT(superview->subviews(), ElementsAre(b));
    EXPECT_EQ(a->superview(), nullptr);
    EXPECT_EQ(a->retainCount(), 1u);
}

TEST(ASubview, LivesAsLongAsItsSuperview)
{
    bool isGone = false;
    auto superview = make<UIView>();
    superview->addSubview(*make<NotingView>(isGone));
    EXPECT_FALSE(isGone);
    superview = nullptr;
    EXPECT_TRUE(isGone);
}

TEST(ASubview, IsFoundByItsTag)
{
    const auto outer = make<UIView>();
    const auto inner = make<UIView>();
    outer->addSubview(*inner);
    inner->setTag(5);
    EXPECT_EQ(inner->tag(), 5);
    EXPECT_EQ(outer->viewWithTag(5), inner.get());
    EXPECT_EQ(outer->viewWithTag(7), nullptr);
}

/// Counts its layouts and keeps to a width.
class OverridingView : public UIView {
public:
    void layoutSubviews() override { ++layouts; }
    void setFrame(const CGRect& frame) override
    {
        UIView::setFrame(CGRectMake(frame.origin.x, frame.origin.y, 100, frame.size.height));
    }
    bool canBecomeFirstResponder() const override { return true; }

    int layouts = 0;
};

TEST(AnOverridingView, IsAskedToLayOutItsSubviews)
{
    const auto view = make<OverridingView>();
    view->layoutIfNeeded();
    EXPECT_EQ(view->layouts, 1);
    view->layoutIfNeeded();
    EXPECT_EQ(view->layouts, 1);
    view->setNeedsLayout();
    view->layoutIfNeeded();
    EXPECT_EQ(view->layouts, 2);
}

TEST(AnOverridingView, IsAskedToSetAFrameThatTheToolkitGivesIt)
{
    const auto view = make<OverridingView>();
    nativeView(*view).setFrame(toolkit::makeRect(1, 2, 3, 4));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 100, 4));
}

TEST(AFirstResponder, HasTheKeyboardOfItsWindow)
{
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    const auto view = make<OverridingView>();
    EXPECT_FALSE(view->becomeFirstResponder()) << "it is in no window";
    window->add(nativeView(*view));
    EXPECT_FALSE(view->isFirstResponder());
    EXPECT_TRUE(view->becomeFirstResponder());
    EXPECT_TRUE(view->isFirstResponder());
    EXPECT_TRUE(window->focus().isGivenTo(nativeView(*view)));
    view->resignFirstResponder();
    EXPECT_FALSE(view->isFirstResponder());
}

TEST(AFirstResponder, IsNoViewThatDoesNotWantToBe)
{
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    const auto view = make<UIView>();
    window->add(nativeView(*view));
    EXPECT_FALSE(view->becomeFirstResponder());
    EXPECT_FALSE(window->focus().isGivenTo(nativeView(*view)));
}

TEST(AnimatingWithADuration, ShowsTheChangesOnTheirWay)
{
    const auto view = make<UIView>(CGRectMake(0, 0, 20, 10));
    UIView::animateWithDurationAnimations(0.2, [&] { view->setFrame(CGRectMake(100, 50, 40, 30)); });
    EXPECT_EQ(view->frame(), CGRectMake(100, 50, 40, 30));
    EXPECT_EQ(nativeView(*view).shownFrame(), toolkit::makeRect(0, 0, 20, 10));
    toolkit::Clock::shared().advance(0.3);
    EXPECT_EQ(nativeView(*view).shownFrame(), toolkit::makeRect(100, 50, 40, 30));
}

TEST(AViewsAccessibility, IsThatOfItsToolkitView)
{
    const auto view = make<UIView>();
    view->setAccessibilityLabel("60 Hz");
    EXPECT_EQ(view->accessibilityLabel(), "60 Hz");
    EXPECT_EQ(nativeView(*view).label(), "60 Hz");
    EXPECT_EQ(view->accessibilityTraits(), UIAccessibilityTraitNone);
    view->setAccessibilityTraits(UIAccessibilityTraitSelected);
    EXPECT_EQ(view->accessibilityTraits(), UIAccessibilityTraitSelected);
    EXPECT_TRUE(nativeView(*view).isChosen());
    view->setIsAccessibilityElement(false);
    EXPECT_FALSE(view->isAccessibilityElement());
    EXPECT_FALSE(nativeView(*view).isRead());
}

} // namespace

} // namespace brimsound::tests
