// The root of the view tree.
#pragma once

#include "toolkit/alert/AlertQueue.h"
#include "toolkit/view/View.h"
#include "toolkit/window/Focus.h"
#include "toolkit/window/TouchSession.h"

#include <functional>
#include <string>

namespace brimsound::toolkit {

/// The view at the top: takes what the user does, hands out what has to be painted. Coordinates are points
/// from the top left corner.
class Window : public View {
public:
    explicit Window(Size);

    /// One finger, or the mouse while its button is down, goes down, moves, and goes up or is taken away by
    /// the system. Moves and ends without a touch are ignored; a second touch while one is down is ignored.
    void touchDown(const Touch&);
    void touchMove(Point location) { _touch.move(location); }
    void touchUp(Point location) { _touch.end(location); }
    void touchCancel() { _touch.cancel(); }
    bool isTouched() const { return _touch.isActive(); }

    /// Takes hold of a view in a touch's place, scrolling it into view. False when a finger could not touch
    /// it, or something is touched already.
    bool hold(View&);
    void letGo(const View& view) { _touch.letGo(view); }

    /// A key was pressed, or is held and strikes again. False when it means nothing.
    bool keyPressed(Key, KeyStroke) override;
    /// A key was let go of; all were, or the keyboard went elsewhere.
    void keyReleased(Key key) { _focus.keyReleased(key); }
    void releaseKeys() { _focus.releaseKeys(); }
    /// Types into the text field that has the keyboard. False when there is none.
    bool typeText(const std::string&);

    Focus& focus() { return _focus; }
    const Focus& focus() const { return _focus; }
    AlertQueue& alerts() { return _alerts; }

    /// Turns a wheel over a point: scrolls what lies there by so many points.
    void scroll(Point at, Point by);

    /// Lays out what needs it; to be called before painting and hit-testing.
    void layOutAll();
    /// Marks a part to be painted again.
    void invalidate(const Rect&) const;

    /// Set by whoever paints the window: told of every part that must be painted again.
    std::function<void(const Rect&)> onInvalidate;
    /// Set by whoever lends text fields an editor: told when another view has the keyboard than before.
    std::function<void()> onFocusMoved;
    /// Set by whoever makes the views accessible, while somebody listens.
    std::function<void(View&, AccessibleChange)> onAccessibleChange;

protected:
    ~Window() override;
    Window* asWindow() override { return this; }

private:
    Focus _focus { *this };
    AlertQueue _alerts { *this };
    TouchSession _touch;
};

/// The window that was made last and still exists, which alerts and sheets appear in; null when there is
/// none.
Window* keyWindow();

} // namespace brimsound::toolkit
