// The nodes of the view tree.
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

/// A rectangle with a place in its parent. A view holds its children and not its parent. Coordinates are
/// points; a view's own start at its origin, which is not zero for one that is scrolled.
class View : public Object {
public:
    explicit View(const Rect& frame = {});

    // The tree.
    View* parent() const { return _parent; }
    /// Back to front.
    const std::vector<Ref<View>>& children() const { return _children; }
    /// Puts the view in front of the other children, out of its former parent.
    void add(View&);
    /// The same, at that place from the back.
    void insert(View&, std::size_t place);
    void removeFromParent();
    /// Whether this is the ancestor or lies in it.
    bool isWithin(const View& ancestor) const;
    /// Null outside of a window.
    Window* window() const;
    /// The view itself or the nearest view around it that scrolls; null when there is none.
    ScrollView* enclosingScrollView() const;

    // Place and size.
    /// In the parent's coordinates.
    Rect frame() const { return _frame; }
    virtual void setFrame(const Rect&);
    /// In the view's own coordinates.
    Rect bounds() const { return { _origin, _frame.size }; }
    Point origin() const { return _origin; }
    void setOrigin(Point);
    /// Whether the width, and the height, grows and shrinks by as much as the parent's does.
    void setFollowsParent(bool width, bool height);
    bool followsWidth() const { return _followsWidth; }
    bool followsHeight() const { return _followsHeight; }
    /// A point of the window in the view's own coordinates, and back.
    Point fromWindow(Point) const;
    Point toWindow(Point) const;
    /// The part that lies within the views around this one, up to the outermost one or, without it, up to the
    /// window; in the view's own coordinates.
    Rect partWithin(const View* outermost) const;

    /// A number to find the view by, at first 0.
    long tag() const { return _tag; }
    void setTag(long tag) { _tag = tag; }
    /// The view itself or the first one in it, depth first, that has the tag; null when there is none.
    View* withTag(long);

    // Looks.
    /// Nothing is no background.
    std::optional<Color> background() const { return _background; }
    void setBackground(std::optional<Color>);
    /// 0 (invisible) to 1; the view fades together with everything in it.
    double alpha() const { return _alpha; }
    void setAlpha(double);
    double cornerRadius() const { return _cornerRadius; }
    void setCornerRadius(double);
    bool isHidden() const { return _hidden; }
    void setHidden(bool);
    /// Whether children are cut off at the view's edges.
    bool clips() const { return _clips; }
    void setClips(bool);
    // While a change is animated, what is shown of it.
    Rect shownFrame() const;
    double shownAlpha() const;
    Color shownBackground() const;
    /// Whether something of it is on its way to what it is.
    bool isMoving() const;

    // Layout and drawing.
    void setNeedsLayout() { _needsLayout = true; }
    /// Lays out the view and everything in it that asked for it.
    void layOutIfNeeded();
    /// Marks the view, or a part of it in its own coordinates, to be drawn again.
    void setNeedsDisplay() const;
    void setNeedsDisplay(const Rect&) const;
    /// Draws the view and everything in it; the canvas is in the coordinates of its parent.
    void drawTree(Canvas&) const;

    // Touches.
    /// Whether the view and all in it can be touched, as at first; else touches go to what lies below.
    bool isInteractive() const { return _interactive; }
    void setInteractive(bool interactive) { _interactive = interactive; }
    /// Whether touches reach the view, or what is in it, where nothing lies over it.
    bool canBeTouched() const;
    /// Whether the view keeps touches from everything that lies below it in its parent.
    bool coversParent() const;
    /// The frontmost view at the point, given in the view's own coordinates; null when it is outside or
    /// nothing there can be touched.
    View* hitTest(Point);
    /// Whether the user can get at the view: it is in a window, not hidden and not covered.
    bool isReachable() const;
    /// A place in the view, in its own coordinates, where a finger would touch it and nothing in front of it:
    /// the middle of what shows when that is one. Nothing when there is none.
    std::optional<Point> placeToTouch();
    /// Scrolls the view into sight. False when a finger could not touch it there: it is covered, or something
    /// is touched already.
    bool comeIntoReach();
    /// Whether something lies over the view, or over a view around it, and keeps the user from it.
    bool isCovered() const;

    // Accessibility.
    /// What a screen reader calls the view; empty for one that says so itself.
    const std::string& label() const { return _label; }
    void setLabel(std::string label) { _label = std::move(label); }
    /// Whether a screen reader reads a text. One that names a control is read with that.
    bool isRead() const { return _read; }
    void setRead(bool read) { _read = read; }
    /// Whether a screen reader is told that it is the chosen one among those beside it.
    bool isChosen() const { return _chosen; }
    void setChosen(bool chosen) { _chosen = chosen; }
    /// Tells whoever listens at the view's window.
    void accessibleChanged(AccessibleChange);
    /// Told when the view is gone. For whoever speaks for the view outside the tree.
    std::function<void()> onDestroyed;

    // What kinds of views do in their own way.
    /// Places the children; called when the size changed or a layout was asked for.
    virtual void layOut() { }
    /// Draws the view itself, in its own coordinates, below its children.
    virtual void draw(Canvas&) const { }
    /// Draws what lies above the children.
    virtual void drawAbove(Canvas&) const { }
    /// How far the view draws beyond its bounds, in points.
    virtual double overhang() const { return 0; }

    /// Whether touches go through the view, and all in it, to what lies below.
    virtual bool ignoresTouches() const { return false; }
    /// Whether a touch that hits the view, or a child that takes no touches, is the view's own.
    virtual bool takesTouches() const { return false; }
    /// Whether the view gives its touch up when the finger turns out to scroll.
    virtual bool yieldsToScrolling() const { return true; }
    virtual void touchBegan(const Touch&) { }
    virtual void touchMoved(const Touch&) { }
    virtual void touchEnded(const Touch&) { }
    virtual void touchCancelled() { }

    /// Whether the keyboard can type into the view.
    virtual bool takesText() const { return false; }
    bool hasKeyboard() const { return _hasKeyboard; }
    /// Whether a ring shows that.
    bool showsFocus() const { return _showsFocus; }
    /// What shows that the view has the keyboard.
    virtual FocusRing focusRing() const;
    /// What in the view has the keyboard while the view has it.
    virtual View& focusedPart() { return *this; }
    /// The view is about to have the keyboard for the sake of that part of it, which may be itself.
    virtual void focusOn(View&) { }
    /// Brings what has the keyboard on view.
    virtual void scrollToFocus();
    /// A key was pressed while the view has the keyboard. False when the key means nothing to it.
    virtual bool keyPressed(Key, KeyStroke) { return false; }
    /// The last key that it took was let go of.
    virtual void keysReleased() { }

    /// The outermost views in the view that mean something, as they are read: from top to bottom, from left
    /// to right. What is hidden is left out, and so is all that lies below a view that covers its parent.
    std::vector<View*> accessibleChildren() const;
    /// The nearest view around the view that means something; null when there is none.
    View* accessibleParent() const;
    virtual Role role() const { return Role::None; }
    /// Whether the keyboard can be given to a view that has a role.
    virtual bool isFocusable() const { return false; }
    /// Does what a tap does, for keys and screen readers. False when a finger could not touch the view.
    virtual bool activate() { return false; }
    /// Everything else about a view that has a role.
    virtual Accessible accessible() const { return { .role = role(), .name = label() }; }

    /// Makes changes that show as movements of that many seconds, starting now: of frames, alphas and
    /// backgrounds. The views have their new values at once. The completion is called when the time is over.
    static void animate(
        double seconds, const std::function<void()>& changes, std::function<void()> completion = nullptr);

protected:
    ~View() override;

    /// The radius of a ring in the view: larger where rounded corners cut the view off, so that it runs
    /// beside them.
    double focusRingRadius() const;
    /// The view got or lost the keyboard.
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
    /// What the view draws on has changed, and so has what the views around it draw on.
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
    /// All that the view and its children draw on as they show now, in the view's own coordinates; unset
    /// until somebody asks. Where it is set, so are those of the visible children that it was made of.
    mutable std::optional<Rect> _reach;
    /// Null until a change is animated.
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
