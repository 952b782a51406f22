// How UIViews and the toolkit's views belong together.
//
// A UIView has a toolkit view behind it, which has the frame, the subviews and the looks, and both live
// equally long: retaining the UIView retains the toolkit's view, and the UIView is deallocated with it. So
// the references that the toolkit's views hold to one another are the ones that their UIViews count.
#pragma once

#include "tests/doubles/UIKit/Conversion.h"
#include "toolkit/view/View.h"

#import <UIKit/UIKit.h>

@interface UIView (Native)
/// Takes over the first reference to the toolkit's view.
- (instancetype)initWithNative:(brimsound::toolkit::View*)native;
@end

namespace brimsound::doubles {

toolkit::View& nativeView(::UIView*);

/// The same, as the class that it is known to have.
template <typename Native> Native& nativeOf(::UIView* view)
{
    return static_cast<Native&>(nativeView(view));
}

/// The UIView in front of the toolkit's view; nil before it is made and after it is deallocated.
inline ::UIView* existingViewOf(const toolkit::View& native)
{
    return static_cast<::UIView*>(native.counterpart());
}

// Null is nil. A UIView is made when there is none.
::UIView* toPlatform(toolkit::View*);
inline ::UIView* toPlatform(toolkit::View& native)
{
    return toPlatform(&native);
}
inline toolkit::Ref<toolkit::View> toToolkit(::UIView* view)
{
    return toolkit::keep(view ? &nativeView(view) : nullptr);
}

/// Whose view it is; nil for nobody. Not retained.
::UIViewController* controllerOf(::UIView*);
void setController(::UIView*, ::UIViewController*);

/// A toolkit view that sends its UIView what that may override.
class HostedView {
public:
    virtual ~HostedView() = default;

    /// Lays the view out as the toolkit does by itself.
    virtual void layOutItself() = 0;
};

template <typename Native> class Hosted : public Native, public HostedView {
public:
    using Native::Native;

    void setFrame(const toolkit::Rect& frame) override
    {
        if (auto* view = existingViewOf(*this))
            [view setFrame:toPlatform(frame)];
        else
            Native::setFrame(frame);
    }

    void layOut() override
    {
        auto* const view = existingViewOf(*this);
        [view layoutSubviews];
        [controllerOf(view) viewDidLayoutSubviews];
    }

    void layOutItself() override { Native::layOut(); }

    bool takesText() const override { return [existingViewOf(*this) canBecomeFirstResponder]; }
};

} // namespace brimsound::doubles
