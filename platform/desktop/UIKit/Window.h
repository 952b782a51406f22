// The root of the view tree.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/desktop/UIKit/Accessible.h"
#include "platform/desktop/UIKit/AlertQueue.h"
#include "platform/desktop/UIKit/Focus.h"
#include "platform/desktop/UIKit/Key.h"
#include "platform/desktop/UIKit/Touch.h"
#include "platform/desktop/UIKit/TouchSession.h"

#include <functional>

namespace brimsound::desktop {

/// The view at the top: takes what the user does, hands out what has to be painted. Coordinates are points
/// from the top left corner.
class Window : public UIView {
public:
    explicit Window(CGSize);

    /// One finger, or the mouse while its button is down, goes down, moves, and goes up or is taken away by
    /// the system. Moves and ends without a touch are ignored; a second touch while one is down is ignored.
    void touchDown(const Touch&);
    void touchMove(CGPoint);
    void touchUp(CGPoint);
    void touchCancel();
    bool isTouched() const { return _touch.isActive(); }

    /// A key was pressed, or is held and strikes again. False when it means nothing.
    bool keyPressed(Key, KeyStroke = KeyStroke::First);
    /// A key was let go of; all were, or the keyboard went elsewhere.
    void keyReleased(Key);
    void releaseKeys();
    /// Types into the text field that has the keyboard. False when there is none.
    bool typeText(const std::string&);

    Focus& focus() { return _focus; }
    const Focus& focus() const { return _focus; }

    AlertQueue& alerts() { return _alerts; }

    /// Turns a wheel over a point: scrolls what lies there by so many points.
    void scroll(CGPoint at, CGPoint by);

    /// Lays out what needs it; to be called before painting and hit-testing.
    void layOut();
    /// Marks a part to be painted again.
    void invalidate(const CGRect&) const;

    /// Set by whoever paints the window: told of every part that must be painted again.
    std::function<void(const CGRect&)> onInvalidate;

    /// Set by whoever lends text fields an editor: told when another view has the keyboard than before.
    std::function<void()> onFocusMoved;

    /// Set by whoever makes the views accessible, while somebody listens.
    std::function<void(UIView&, AccessibleChange)> onAccessibleChange;

protected:
    ~Window() override;

private:
    Focus _focus { *this };
    AlertQueue _alerts;
    TouchSession _touch;
};

/// The window that the view is in; null when it is in none.
Window* windowOf(UIView&);
const Window* windowOf(const UIView&);

/// The window that was made last and still exists, which alerts and sheets appear in; null when there is
/// none.
Window* keyWindow();

} // namespace brimsound::desktop
