// Where the keyboard is.
#pragma once

#include "toolkit/input/Key.h"
#include "toolkit/object/Object.h"

#include <optional>
#include <vector>

namespace brimsound::toolkit {

class View;
class Window;

/// Knows the view of a window that has the keyboard, and moves it on. While a view is covered or hidden, the
/// keyboard is where it was given to since; it comes back by itself when the view can be got at again. A ring
/// shows where it is once a key was used, until something is touched.
class Focus {
public:
    /// The window owns the focus and outlives it.
    explicit Focus(Window&);
    Focus(const Focus&) = delete;
    Focus& operator=(const Focus&) = delete;

    /// The view that has the keyboard; null when none that can be got at has.
    View* view() const;
    /// What in that view has it: a row of a list, else the view itself.
    View* part() const;

    void giveTo(View&);
    void takeFrom(View&);
    /// Whether the keyboard was given to the view and not taken from it, covered or not.
    bool isGivenTo(const View&) const;
    /// Gives the keyboard to the view or to what takes keys for it, and scrolls there. False when nothing
    /// does.
    bool moveTo(View&);

    /// Tab and the arrows move the keyboard on, Space and Return press what has it, Escape closes what is in
    /// front, unless the view that has the keyboard takes the key for itself. False when the key means
    /// nothing.
    bool keyPressed(Key, KeyStroke);
    void keyReleased(Key);
    /// No key is held any more, as far as the views are concerned.
    void releaseKeys();

    /// A touch begins on the view.
    void touched(View& hit);

    /// The view and all in it are about to leave the window.
    void forgetWithin(const View&);

    /// Notices that the keyboard is at another view than before: to be called when views may have come or
    /// gone.
    void refresh();

private:
    bool moveOn(Direction);
    bool scroll(Key);
    void showRing(bool);
    void tell(View&, bool hasKeyboard) const;

    Window& _window;
    /// Those that the keyboard was given to; each covered the one before.
    std::vector<View*> _views;
    /// The one that knows that it has the keyboard.
    View* _known = nullptr;
    bool _showsRing = false;
    /// The key that is held, and the view that took it.
    std::optional<Key> _heldKey;
    Ref<View> _keyed;
};

} // namespace brimsound::toolkit
