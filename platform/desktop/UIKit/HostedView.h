// Toolkit views that the product's views can derive from.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Geometry.h"
#include "toolkit/view/View.h"

#include <utility>

namespace brimsound::desktop {

/// A toolkit view that asks the product's view for what that may override. What the product's view asks of
/// its base class goes to the toolkit's own.
class HostedView {
public:
    virtual ~HostedView() = default;

    /// Lays the view out as the toolkit does by itself.
    virtual void layOutItself() = 0;

    /// Whose view it is; null for one that is nobody's.
    void setController(UIViewController* controller) { _controller = controller; }

    /// The background color as it was given; null for none.
    const RetainPtr<UIColor>& backgroundColor() const { return _backgroundColor; }
    void setBackgroundColor(RetainPtr<UIColor> color) { _backgroundColor = std::move(color); }

protected:
    UIViewController* controller() const { return _controller; }

private:
    UIViewController* _controller = nullptr;
    RetainPtr<UIColor> _backgroundColor;
};

template <typename Native> class Hosted : public Native, public HostedView {
public:
    using Native::Native;

    void setFrame(const toolkit::Rect& frame) override
    {
        if (auto* view = product())
            view->setFrame(cgRect(frame));
        else
            Native::setFrame(frame);
    }

    void layOut() override
    {
        if (auto* view = product())
            view->layoutSubviews();
        else
            layOutItself();
        if (auto* owner = controller())
            owner->viewDidLayoutSubviews();
    }

    void layOutItself() override { Native::layOut(); }

    bool takesText() const override
    {
        const auto* view = product();
        return view ? view->canBecomeFirstResponder() : Native::takesText();
    }

private:
    UIView* product() const { return static_cast<UIView*>(existingObjectOf(*this)); }
};

/// The toolkit's view behind one of the product's.
inline toolkit::View& nativeView(const UIView& view)
{
    return nativeOf<toolkit::View>(view);
}

/// The product's view that the toolkit's belongs to, made when there is none. Not retained; null for null.
UIView* viewOf(toolkit::View*);

} // namespace brimsound::desktop
