#pragma once

#include "toolkit/input/Touch.h"
#include "toolkit/object/Object.h"
#include "toolkit/time/Animation.h"

namespace brimsound::toolkit {

class ScrollView;
class View;

/// The current touch of a window. Decides whether the touch goes to the view that it hit or scrolls an
/// enclosing scroll view. The touch of a finger in a scroll view is delayed for a moment: when the finger
/// starts to move vertically within that time it scrolls, and the view does not receive the touch. A control
/// keeps a touch that it received. A view that is operated without a touch, for example by a key, is held in
/// place of a touch.
class TouchSession {
public:
    TouchSession() = default;
    TouchSession(const TouchSession&) = delete;
    TouchSession& operator=(const TouchSession&) = delete;

    /// False when the held view has left the window.
    bool isActive() const;

    /// `hit` is the frontmost view at the touch.
    void begin(View& hit, const Touch&);
    void move(Point);
    void end(Point);
    void cancel();

    void hold(View&);
    /// Ends the hold without calling the view. Does nothing when the view is not held.
    void letGo(const View&);

private:
    enum class Phase {
        None,
        /// No view has received the touch yet.
        HeldBack,
        /// The view that was hit receives the touch.
        WithView,
        /// The touch scrolls.
        Scrolling,
        /// There is no touch; a key or a screen reader operates the view.
        Held,
    };

    void handOver();
    void startScrolling();
    void finish();
    bool movesUpOrDown(Point) const;

    Phase _phase = Phase::None;
    Touch _first;
    Touch _last;
    Ref<View> _view;
    Ref<ScrollView> _scrollView;
    Animation _delay;
};

} // namespace brimsound::toolkit
