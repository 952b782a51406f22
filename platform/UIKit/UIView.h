// Views: rectangles on the screen that hold other views.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"
#include "platform/QuartzCore/CALayer.h"
#include "platform/UIKit/UIAccessibility.h"
#include "platform/UIKit/UIColor.h"

#include <functional>
#include <string>
#include <vector>

namespace brimsound {

/// What of a view's frame follows when its superview's size changes. The rest stays as it is.
using UIViewAutoresizing = unsigned long;
inline constexpr UIViewAutoresizing UIViewAutoresizingNone = 0;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleWidth = 1 << 1;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleHeight = 1 << 4;

/// A rectangle with a place in its superview. A view retains its subviews and not its superview.
class UIView : public NSObject {
public:
    explicit UIView(const CGRect& frame = {});

    /// Place and size in the superview's coordinates, in points.
    CGRect frame() const;
    virtual void setFrame(const CGRect&);
    /// The view's own coordinates: its size, from its own origin on.
    CGRect bounds() const;
    /// A flexible width or height grows and shrinks, at once, by as much as the superview's does. At first
    /// none is.
    UIViewAutoresizing autoresizingMask() const;
    void setAutoresizingMask(UIViewAutoresizing);

    UIView* superview() const;
    /// Back to front.
    std::vector<RetainPtr<UIView>> subviews() const;
    /// Puts the view in front of the other subviews, out of its former superview if it had one.
    void addSubview(UIView&);
    void removeFromSuperview();

    /// Asks for layoutSubviews before the next drawing.
    void setNeedsLayout();
    /// Has it called at once, if it was asked for, here and in all subviews.
    void layoutIfNeeded();
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
    /// Whether subviews are cut off at the view's edges; at first they are not.
    bool clipsToBounds() const;
    void setClipsToBounds(bool);
    /// Whether the view and all in it can be touched, as at first; else touches go to what lies below.
    bool isUserInteractionEnabled() const;
    void setUserInteractionEnabled(bool);
    CALayer layer() { return CALayer(*this); }

    /// A number to find the view by, at first 0.
    long tag() const;
    void setTag(long);
    /// The view itself or the first one in it, depth first, that has the tag; null when there is none.
    UIView* viewWithTag(long);

    /// What a screen reader calls the view; empty (as at first) for one that says so itself.
    std::string accessibilityLabel() const;
    void setAccessibilityLabel(const std::string&);
    /// At first none.
    UIAccessibilityTraits accessibilityTraits() const;
    void setAccessibilityTraits(UIAccessibilityTraits);

    /// Whether the view can be what the keyboard types into; here it cannot.
    virtual bool canBecomeFirstResponder() const { return false; }
    /// Takes the keyboard, from whoever has it. False for a view that cannot or is in no window.
    bool becomeFirstResponder();
    /// Gives the keyboard up. So does a view that leaves its window.
    void resignFirstResponder();
    bool isFirstResponder() const;

    /// Makes changes that show as movements of that many seconds, starting now: of frames, alphas and
    /// background colors. The views have their new values at once.
    static void animateWithDurationAnimations(double seconds, const std::function<void()>& animations);

protected:
    explicit UIView(Peer*);
    ~UIView() override;
};

} // namespace brimsound
