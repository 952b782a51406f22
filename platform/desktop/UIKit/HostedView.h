#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Geometry.h"
#include "toolkit/view/View.h"

#include <utility>

namespace brimsound::desktop {

/// The native object of a view of the product. It calls the methods that the product's class may override;
/// their base implementations call the toolkit.
class HostedView {
public:
    virtual ~HostedView() = default;

    /// The toolkit's own layout.
    virtual void layOutItself() = 0;

    /// The controller that this is the view of; may be null.
    void setController(UIViewController* controller) { _controller = controller; }

    /// The background color that was set; may be null.
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

/// The toolkit view of one of the product's views.
inline toolkit::View& nativeView(const UIView& view)
{
    return nativeOf<toolkit::View>(view);
}

/// The UIView of a toolkit view, created if necessary. Not retained; null for null.
UIView* viewOf(toolkit::View*);

} // namespace brimsound::desktop
