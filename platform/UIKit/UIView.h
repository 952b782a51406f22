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

/// The parts of a view's frame that change with its superview's size.
using UIViewAutoresizing = unsigned long;
inline constexpr UIViewAutoresizing UIViewAutoresizingNone = 0;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleWidth = 1 << 1;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleHeight = 1 << 4;

/// A rectangle on the screen that contains other views. A view retains its subviews but not its superview.
class UIView : public NSObject {
public:
    explicit UIView(const CGRect& frame = {});

    /// Position and size in the superview's coordinates, in points.
    CGRect frame() const;
    virtual void setFrame(const CGRect&);
    /// The view's rectangle in its own coordinates.
    CGRect bounds() const;
    /// A flexible width or height changes, at once, by as much as the superview's does. Initially neither is
    /// flexible.
    UIViewAutoresizing autoresizingMask() const;
    void setAutoresizingMask(UIViewAutoresizing);

    UIView* superview() const;
    /// Back to front.
    std::vector<RetainPtr<UIView>> subviews() const;
    /// Adds the view in front of the other subviews. Removes it from its previous superview, if any.
    void addSubview(UIView&);
    void removeFromSuperview();

    /// Requests a call of layoutSubviews before the next drawing.
    void setNeedsLayout();
    /// Performs a requested layout at once, here and in all subviews.
    void layoutIfNeeded();
    /// Places the subviews. Called when the size changed or a layout was requested. The base class does
    /// nothing.
    virtual void layoutSubviews();

    /// Null (the initial value) for no background.
    RetainPtr<UIColor> backgroundColor() const;
    void setBackgroundColor(RetainPtr<UIColor>);
    /// 0 (invisible) to 1. Applies to the view together with its subviews.
    CGFloat alpha() const;
    void setAlpha(CGFloat);
    bool isHidden() const;
    void setHidden(bool);
    /// Whether subviews are clipped to the view's bounds; initially false.
    bool clipsToBounds() const;
    void setClipsToBounds(bool);
    /// Whether the view and its subviews receive touches; initially true. Otherwise touches go to the view
    /// below.
    bool isUserInteractionEnabled() const;
    void setUserInteractionEnabled(bool);
    CALayer layer() { return CALayer(*this); }

    /// A number that identifies the view; initially 0.
    long tag() const;
    void setTag(long);
    /// The view itself or the first descendant, depth first, with the tag; null when there is none.
    UIView* viewWithTag(long);

    /// The view's name for screen readers; empty (the initial value) for a view whose own text is used.
    std::string accessibilityLabel() const;
    void setAccessibilityLabel(const std::string&);
    /// Whether screen readers read a view that shows text. Set to false for a label that only names another
    /// view.
    bool isAccessibilityElement() const;
    void setIsAccessibilityElement(bool);
    /// Initially none.
    UIAccessibilityTraits accessibilityTraits() const;
    void setAccessibilityTraits(UIAccessibilityTraits);

    /// Whether the view can receive keyboard input. The base class returns false.
    virtual bool canBecomeFirstResponder() const { return false; }
    /// Gives the keyboard to this view instead of the current first responder. Returns false for a view that
    /// cannot take it or is in no window.
    bool becomeFirstResponder();
    /// Gives up the keyboard. This also happens when the view leaves its window.
    void resignFirstResponder();
    bool isFirstResponder() const;

    /// Animates changes of frames, alphas and background colors over that many seconds, starting now. The
    /// views' properties have their new values at once.
    static void animateWithDurationAnimations(double seconds, const std::function<void()>& animations);

protected:
    explicit UIView(Peer*);
    ~UIView() override;
};

} // namespace brimsound
