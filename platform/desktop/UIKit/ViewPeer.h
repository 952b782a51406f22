// A node of the view tree: what stands behind a UIView.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Accessible.h"
#include "platform/desktop/UIKit/Animation.h"
#include "platform/desktop/UIKit/Canvas.h"
#include "platform/desktop/UIKit/FocusRing.h"
#include "platform/desktop/UIKit/Key.h"
#include "platform/desktop/UIKit/Touch.h"

#include <functional>
#include <memory>
#include <vector>

namespace brimsound {
class UIViewController;
}

namespace brimsound::desktop {

/// The state of a view and, in the derived peers, how it draws itself and what it does with touches.
struct ViewPeer : Peer {
    ViewPeer() = default;
    ~ViewPeer() override;

    /// The view this is the peer of; set by the view's constructor.
    UIView* view = nullptr;

    CGRect frame;
    /// What the view's own coordinates start from: the offset of a scroll view.
    CGPoint origin;
    UIView* superview = nullptr;
    /// Whose view this is; null for one that is nobody's.
    UIViewController* controller = nullptr;
    UIViewAutoresizing autoresizingMask = UIViewAutoresizingNone;
    std::vector<RetainPtr<UIView>> subviews;

    RetainPtr<UIColor> backgroundColor;
    double alpha = 1;
    double cornerRadius = 0;
    bool hidden = false;
    bool clipsToBounds = false;
    bool needsLayout = true;
    bool userInteractionEnabled = true;
    long tag = 0;
    std::string accessibilityLabel;
    UIAccessibilityTraits accessibilityTraits = UIAccessibilityTraitNone;
    /// Null while the view looks as it is.
    std::shared_ptr<Animation> animation;

    // What is drawn: on its way to what the view has while that moves.
    CGRect shownFrame() const;
    double shownAlpha() const;
    Color shownBackground() const;

    /// How far the view draws beyond its bounds, in points.
    double overhang = 0;

    /// Draws the view itself, in its own coordinates, below its subviews.
    virtual void draw(Canvas&) const { }
    /// Draws what lies above the subviews.
    virtual void drawAbove(Canvas&) const { }

    /// Whether touches go through the view, and all in it, to what lies below.
    virtual bool ignoresTouches() const { return false; }
    /// Whether a touch that hits the view, or a subview that does not take touches, is the view's own.
    virtual bool takesTouches() const { return false; }
    /// Whether the view gives its touch up when the finger turns out to scroll.
    virtual bool yieldsToScrolling() const { return true; }
    virtual void touchBegan(const Touch&) { }
    virtual void touchMoved(const Touch&) { }
    virtual void touchEnded(const Touch&) { }
    virtual void touchCancelled() { }

    // Set by the focus of the view's window.
    bool hasKeyboard = false;
    bool showsFocus = false;
    /// What shows that the view has the keyboard.
    virtual FocusRing focusRing() const;
    /// What in the view has the keyboard while the view has it.
    virtual UIView& focusedPart() const { return *view; }
    /// The view is about to have the keyboard for the sake of that part of it, which may be itself.
    virtual void focusOn(UIView&) { }
    /// Brings what has the keyboard on view.
    virtual void scrollToFocus();
    /// A key was pressed while the view has the keyboard. False when the key means nothing to it.
    virtual bool keyPressed(Key, KeyStroke) { return false; }
    /// The last key that it took was let go of.
    virtual void keysReleased() { }

    /// Told when the view is laid out, before its layoutSubviews.
    virtual void willLayOut() { }

    virtual Accessible accessible() const { return {}; }

    /// Set by whoever speaks for the view outside the tree: told when the view is gone.
    std::function<void()> onDestroyed;
};

/// The peer of a view.
ViewPeer& peerOf(const UIView&);

/// The bounds in the view's own coordinates.
CGRect boundsOf(const ViewPeer&);

/// Whether touches reach the view, or what is in it, where nothing lies over it.
bool canBeTouched(const ViewPeer&);

/// Whether the view keeps touches from everything that lies below it in its superview.
bool coversSuperview(const UIView&);

/// The part of the view that lies within the views around it, up to the outermost one, in the view's own
/// coordinates. Without an outermost one, up to the window.
CGRect partWithin(const UIView& view, const UIView* outermost);

/// The radius of a ring in a view: larger where rounded corners cut the view off, so that it runs beside
/// them.
double focusRingRadius(const UIView&);

/// Whether the view is the other one or lies in it; false for null.
bool isWithin(const UIView*, const UIView& ancestor);

/// All that the view and its subviews draw on as they show now, in the view's own coordinates.
CGRect reachOf(const ViewPeer&);

/// Marks the view, or a part of it given in its own coordinates, to be drawn again.
void setNeedsDisplay(const UIView&);
void setNeedsDisplay(const UIView&, const CGRect&);

/// Changes the view's own origin: scrolls it.
void setOrigin(UIView&, CGPoint);

/// A point of the window in the view's own coordinates, and back.
CGPoint convertFromWindow(CGPoint, const UIView&);
CGPoint convertToWindow(CGPoint, const UIView&);

/// Lays out the view and everything in it that asked for it.
void layOutTree(UIView&);

/// Draws the view and everything in it; the canvas is in the coordinates of its superview.
void drawTree(const UIView&, Canvas&);

/// The frontmost view at the point, given in the view's own coordinates; null when it is outside or nothing
/// there can be touched.
UIView* hitTest(UIView&, CGPoint);

bool isFinite(const CGRect&);
bool contains(const CGRect&, CGPoint);
bool contains(const CGRect& outer, const CGRect& inner);
bool intersects(const CGRect&, const CGRect&);
CGRect insetBy(const CGRect&, double dx, double dy);
CGRect intersection(const CGRect&, const CGRect&);
CGRect unite(const CGRect&, const CGRect&);

} // namespace brimsound::desktop
