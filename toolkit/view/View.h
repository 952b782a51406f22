#pragma once

#include "toolkit/accessibility/Accessible.h"
#include "toolkit/drawing/Canvas.h"
#include "toolkit/drawing/FocusRing.h"
#include "toolkit/input/Key.h"
#include "toolkit/input/Touch.h"
#include "toolkit/object/Object.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::toolkit {

class ScrollView;
class Transition;
class Window;

/// A node of the view tree: a rectangle in its parent's coordinates. A view keeps references to its children,
/// but not to its parent. Coordinates are points. A view's own coordinates start at its origin, which changes
/// when it scrolls.
class View : public Object {
public:
    explicit View(const Rect& frame = {});

    // The tree.
    View* parent() const { return _parent; }
    /// Back to front.
    const std::vector<Ref<View>>& children() const { return _children; }
    /// Adds the view in front of the other children, after removing it from its former parent.
    void add(View&);
    /// The same at that index from the back.
    void insert(View&, std::size_t place);
    void removeFromParent();
    /// Whether this is the ancestor or one of its descendants.
    bool isWithin(const View& ancestor) const;
    /// Null when the view is not in a window.
    Window* window() const;
    /// The view itself or its nearest ancestor that scrolls; may be null.
    ScrollView* enclosingScrollView() const;

    // Place and size.
    /// In the parent's coordinates.
    Rect frame() const { return _frame; }
    virtual void setFrame(const Rect&);
    /// In the view's own coordinates.
    Rect bounds() const { return { _origin, _frame.size }; }
    Point origin() const { return _origin; }
    void setOrigin(Point);
    /// Whether the width and the height change by as much as the parent's.
    void setFollowsParent(bool width, bool height);
    bool followsWidth() const { return _followsWidth; }
    bool followsHeight() const { return _followsHeight; }
    /// Convert between the coordinates of the window and of the view.
    Point fromWindow(Point) const;
    Point toWindow(Point) const;
    /// The part of the bounds within all ancestors, up to `outermost` or, when that is null, up to the
    /// window; in the view's own coordinates.
    Rect partWithin(const View* outermost) const;

    /// For finding the view by number; initially 0.
    long tag() const { return _tag; }
    void setTag(long tag) { _tag = tag; }
    /// The view itself or its first descendant, depth first, with this tag; may be null.
    View* withTag(long);

    // Appearance.
    /// Nothing for no background.
    std::optional<Color> background() const { return _background; }
    void setBackground(std::optional<Color>);
    /// 0 (invisible) to 1, for the view with all its descendants.
    double alpha() const { return _alpha; }
    void setAlpha(double);
    double cornerRadius() const { return _cornerRadius; }
    void setCornerRadius(double);
    bool isHidden() const { return _hidden; }
    void setHidden(bool);
    /// Whether the children are clipped to the bounds.
    bool clips() const { return _clips; }
    void setClips(bool);
    // The current values during an animated change.
    Rect shownFrame() const;
    double shownAlpha() const;
    Color shownBackground() const;
    /// Whether a property is animated.
    bool isMoving() const;

    // Layout and drawing.
    /// Whether the view's window is laid out from right to left.
    bool isRightToLeft() const;
    /// The place of what has that place in the view when it is laid out from left to right.
    Rect inLayoutDirection(const Rect&) const;
    /// Where texts start that have no other alignment.
    Alignment naturalAlignment() const;
    void setNeedsLayout() { _needsLayout = true; }
    /// Lays out the view and its descendants that need it.
    void layOutIfNeeded();
    /// Marks the view, or a rectangle in its own coordinates, for drawing.
    void setNeedsDisplay() const;
    void setNeedsDisplay(const Rect&) const;
    /// Draws the view and its descendants. The canvas is in the parent's coordinates.
    void drawTree(Canvas&) const;

    // Touches.
    /// Whether the view and its descendants accept touches, initially true. Otherwise touches go to the views
    /// below.
    bool isInteractive() const { return _interactive; }
    void setInteractive(bool interactive) { _interactive = interactive; }
    /// Whether the view accepts touches where nothing covers it.
    bool canBeTouched() const;
    /// Whether the view covers its parent, so that no touch reaches the views below it.
    bool coversParent() const;
    /// The frontmost view at the point, given in the view's own coordinates. Null when the point is outside
    /// or nothing there accepts touches.
    View* hitTest(Point);
    /// Whether the view is in a window, neither hidden nor covered.
    bool isReachable() const;
    /// A point in the view's own coordinates where a touch would reach the view: the middle of the visible
    /// part if possible. Nothing when there is none.
    std::optional<Point> placeToTouch();
    /// Scrolls the view into view. Returns false when a touch could not reach it there: it is covered, or
    /// another touch is active.
    bool comeIntoReach();
    /// Whether another view covers this view or one of its ancestors.
    bool isCovered() const;

    // Accessibility.
    /// The name for screen readers. Empty for views that derive it from their contents.
    const std::string& label() const { return _label; }
    void setLabel(std::string label) { _label = std::move(label); }
    /// Whether a text is an element for screen readers. False for the text that names a control.
    bool isRead() const { return _read; }
    void setRead(bool read) { _read = read; }
    /// Whether screen readers announce the view as the selected one of its siblings.
    bool isChosen() const { return _chosen; }
    void setChosen(bool chosen) { _chosen = chosen; }
    /// Passes the change to the window's listener.
    void accessibleChanged(AccessibleChange);
    /// Called when the view is destroyed.
    std::function<void()> onDestroyed;

    // For derived classes to override.
    /// Sets the frames of the children. Called after the size changed or setNeedsLayout was called.
    virtual void layOut() { }
    /// Draws the view below its children, in its own coordinates.
    virtual void draw(Canvas&) const { }
    /// Draws above the children.
    virtual void drawAbove(Canvas&) const { }
    /// How far the view draws beyond its bounds, in points.
    virtual double overhang() const { return 0; }

    /// Whether touches pass through the view and its descendants to the views below.
    virtual bool ignoresTouches() const { return false; }
    /// Whether the view handles touches that hit it, or a descendant that handles none.
    virtual bool takesTouches() const { return false; }
    /// Whether the touch is canceled when the finger scrolls.
    virtual bool yieldsToScrolling() const { return true; }
    virtual void touchBegan(const Touch&) { }
    virtual void touchMoved(const Touch&) { }
    virtual void touchEnded(const Touch&) { }
    virtual void touchCanceled() { }

    /// Whether the keyboard types into the view.
    virtual bool takesText() const { return false; }
    bool hasKeyboard() const { return _hasKeyboard; }
    /// Whether the focus ring is visible.
    bool showsFocus() const { return _showsFocus; }
    /// The focus ring, in the view's own coordinates.
    virtual FocusRing focusRing() const;
    /// The part of the view that the keyboard focus is on, such as a row of a list.
    virtual View& focusedPart() { return *this; }
    /// Called before the view gets the keyboard focus because of that part, which may be the view itself.
    virtual void focusOn(View&) { }
    /// Scrolls the focused part into view.
    virtual void scrollToFocus();
    /// Called for a key while the view has the keyboard focus. Returns false when it does not use the key.
    virtual bool keyPressed(Key, KeyStroke) { return false; }
    /// Called when the last key that it used was released.
    virtual void keysReleased() { }

    /// The outermost descendants with a role, in reading order: from top to bottom, then in the window's
    /// layout direction. Hidden views are left out, and all views below one that covers its parent.
    std::vector<View*> accessibleChildren() const;
    /// The nearest ancestor with a role; may be null.
    View* accessibleParent() const;
    virtual Role role() const { return Role::None; }
    /// Whether a view with a role can have the keyboard focus.
    virtual bool isFocusable() const { return false; }
    /// Has the effect of a tap, for keys and screen readers. Returns false when a touch could not reach the
    /// view.
    virtual bool activate() { return false; }
    /// All properties for screen readers. Only for a view with a role.
    virtual Accessible accessible() const { return { .role = role(), .name = label() }; }

    /// Animates the changes of frames, alphas and backgrounds that the function makes. The properties have
    /// their new values immediately. The completion is called after the duration.
    static void animate(
        double seconds, const std::function<void()>& changes, std::function<void()> completion = nullptr);

protected:
    ~View() override;

    /// The radius of the focus ring: larger in rounded corners, so that the ring is parallel to them.
    double focusRingRadius() const;
    /// Called when the view got or lost the keyboard focus.
    virtual void keyboardChanged() { }
    virtual Window* asWindow() { return nullptr; }
    virtual ScrollView* asScrollView() { return nullptr; }

private:
    friend class Focus;
    friend class Transition;

    Point toParent(Point point) const { return point - _origin + _frame.origin; }
    Point fromParent(Point point) const { return point - _frame.origin + _origin; }
    Rect shownInParent(const Rect&) const;
    Rect shownBounds() const { return { _origin, shownFrame().size }; }
    const Rect& reach() const;
    Rect computeReach() const;
    /// Resets the reach of the view and its ancestors.
    void reachChanged() const;
    void resizeChildren(Size before);
    void drawContents(Canvas&) const;
    bool isShown() const;
    bool isCoveredBySibling() const;

    Rect _frame;
    Point _origin;
    View* _parent = nullptr;
    std::vector<Ref<View>> _children;
    std::optional<Color> _background;
    double _alpha = 1;
    double _cornerRadius = 0;
    std::string _label;
    long _tag = 0;
    /// The area on which the view and its children currently draw, in the view's own coordinates. Unset until
    /// needed. When it is set, so are those of the visible children that it was computed from.
    mutable std::optional<Rect> _reach;
    /// Null before the first animated change.
    std::unique_ptr<Transition> _transition;
    bool _hidden = false;
    bool _clips = false;
    bool _needsLayout = true;
    bool _interactive = true;
    bool _followsWidth = false;
    bool _followsHeight = false;
    bool _chosen = false;
    bool _read = true;
    bool _hasKeyboard = false;
    bool _showsFocus = false;
};

} // namespace brimsound::toolkit
