#pragma once

#include "toolkit/alert/AlertQueue.h"
#include "toolkit/geometry/LayoutDirection.h"
#include "toolkit/view/View.h"
#include "toolkit/window/Focus.h"
#include "toolkit/window/TouchSession.h"

#include <functional>
#include <string>

namespace brimsound::toolkit {

/// The root of the view tree. Distributes input and reports what must be drawn. Coordinates are points from
/// the top left corner.
class Window : public View {
public:
    explicit Window(Size, LayoutDirection = LayoutDirection::LeftToRight);

    LayoutDirection layoutDirection() const { return _layoutDirection; }

    /// A finger, or the mouse while its button is pressed. touchCancel is for touches that the system takes
    /// away. Moves and ends without a touch are ignored, and so is a second touch.
    void touchDown(const Touch&);
    void touchMove(Point location) { _touch.move(location); }
    void touchUp(Point location) { _touch.end(location); }
    void touchCancel() { _touch.cancel(); }
    bool isTouched() const { return _touch.isActive(); }

    /// Scrolls a view into view and holds it in place of a touch. Returns false when a touch could not reach
    /// it, or another touch is active.
    bool hold(View&);
    void letGo(const View& view) { _touch.letGo(view); }

    /// Returns false when the key has no effect.
    bool keyPressed(Key, KeyStroke) override;
    /// A key was released. releaseKeys is for all keys, also when the window loses the keyboard.
    void keyReleased(Key key) { _focus.keyReleased(key); }
    void releaseKeys() { _focus.releaseKeys(); }
    /// Types into the focused text field. Returns false when there is none.
    bool typeText(const std::string&);

    Focus& focus() { return _focus; }
    const Focus& focus() const { return _focus; }
    AlertQueue& alerts() { return _alerts; }

    /// Scrolls with a wheel over a point, by a distance in points.
    void scroll(Point at, Point by);

    /// Lays out the views that need it. Must be called before drawing and hit testing.
    void layOutAll();
    /// Reports a rectangle that must be drawn again.
    void invalidate(const Rect&) const;

    /// Set by the program: called for every rectangle that must be drawn again.
    std::function<void(const Rect&)> onInvalidate;
    /// Set by the program: called when the focus moved to another view.
    std::function<void()> onFocusMoved;
    /// Set by the program while a screen reader is active.
    std::function<void(View&, AccessibleChange)> onAccessibleChange;

protected:
    ~Window() override;
    Window* asWindow() override { return this; }

private:
    const LayoutDirection _layoutDirection;
    Focus _focus { *this };
    AlertQueue _alerts { *this };
    TouchSession _touch;
};

/// The newest window, in which alerts and sheets appear; may be null.
Window* keyWindow();

} // namespace brimsound::toolkit
