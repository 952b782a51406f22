#pragma once

#include "toolkit/input/Key.h"
#include "toolkit/object/Object.h"

#include <optional>
#include <vector>

namespace brimsound::toolkit {

class View;
class Window;

/// The keyboard focus of a window. When the focused view is covered or hidden, the focus is on another view.
/// It returns when the view is reachable again. A ring shows the focus after a key was pressed, until a
/// touch.
class Focus {
public:
    /// The window owns the focus and outlives it.
    explicit Focus(Window&);
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;

    /// The focused view. Null when none is reachable.
    View* view() const;
    /// The focused part of that view: a row of a list, otherwise the view itself.
    View* part() const;

    void giveTo(View&);
    void takeFrom(View&);
    /// Whether giveTo was called for the view and takeFrom was not. The view may be covered.
    bool isGivenTo(const View&) const;
    /// Moves the focus to the view or its nearest ancestor that can have it, and scrolls there. Returns false
    /// when there is none.
    bool moveTo(View&);

    /// Escape closes what is in front, Tab moves the focus. Other keys go to the focused view. When it does
    /// not use them, the arrow keys move the focus, Space and Return press the view, and Page Up, Page Down,
    /// Home and End scroll. Returns false when the key has no effect.
    bool keyPressed(Key, KeyStroke);
    void keyReleased(Key);
    /// Treats all keys as released.
    void releaseKeys();

    /// Called when a touch begins on the view.
    void touched(View& hit);

    /// Called before the view and its descendants are removed from the window.
    void forgetWithin(const View&);

    /// Updates the focus. Must be called when views may have appeared or disappeared.
    void refresh();

private:
    bool moveOn(Direction);
    bool scroll(Key);
    void showRing(bool);
    void tell(View&, bool hasKeyboard) const;

    Window& _window;
    /// The views that giveTo was called for. Each covered the one before.
    std::vector<View*> _views;
    /// The view that was last notified that it has the focus.
    View* _known = nullptr;
    bool _showsRing = false;
    /// The pressed key, and the view that used it.
    std::optional<Key> _heldKey;
    Ref<View> _keyed;
};

} // namespace brimsound::toolkit
