// Views: rectangles on the screen that hold other views.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"
#include "platform/UIKit/UIColor.h"

#include <vector>

namespace brimsound {

/// A rectangle with a place in its superview. A view retains its subviews and not its superview.
class UIView : public NSObject {
public:
    explicit UIView(const CGRect& frame = {});

    /// Place and size in the superview's coordinates, in points.
    CGRect frame() const;
    virtual void setFrame(const CGRect&);
    /// The view's own coordinates: its size, from its own origin on.
    CGRect bounds() const;

    UIView* superview() const;
    /// Back to front.
    const std::vector<RetainPtr<UIView>>& subviews() const;
    /// Puts the view in front of the other subviews, out of its former superview if it had one.
    void addSubview(UIView&);
    void removeFromSuperview();

    /// Asks for layoutSubviews before the next drawing.
    void setNeedsLayout();
    /// Places the subviews; called when the size changed or a layout was asked for. The base class does
    /// nothing.
    virtual void layoutSubviews();

    /// Null (as at first) is no background.
    RetainPtr<UIColor> backgroundColor() const;
    void setBackgroundColor(RetainPtr<UIColor>);
    /// 0 (invisible) to 1; the view fades together with everything in it.
    CGFloat alpha() const;
    void setAlpha(CGFloat);
    bool isHidden() const;
    void setHidden(bool);

protected:
    explicit UIView(Peer*);
    ~UIView() override;
};

} // namespace brimsound
