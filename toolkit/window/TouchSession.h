// The life of one touch.
#pragma once

#include "toolkit/input/Touch.h"
#include "toolkit/object/Object.h"
#include "toolkit/time/Animation.h"

namespace brimsound::toolkit {

class ScrollView;
class View;

/// Decides whether a touch belongs to the view that it hit or scrolls what that view lies in. A finger on a
/// view within a scroll view is held back for a moment: when it starts to move up or down within that time it
/// scrolls, and the view never hears of it. Once a control has the touch, it keeps it. A view that is held
/// without a touch, as by a key, takes the touch's place.
class TouchSession {
public:
    TouchSession() = default;
    TouchSession(const TouchSession&) = delete;
    TouchSession& operator=(const TouchSession&) = delete;

    /// A hold is over when its view leaves the window.
    bool isActive() const;

    /// `hit` is the frontmost view at the touch.
    void begin(View& hit, const Touch&);
    void move(Point);
    void end(Point);
    void cancel();

    void hold(View&);
    /// Ends the hold of that view, without telling it. Nothing when it is not the one that is held.
    void letGo(const View&);

private:
    enum class Phase {
        None,
        /// Nobody has heard of the touch yet.
        HeldBack,
        /// The view that was hit has it.
        WithView,
        /// It scrolls.
        Scrolling,
        /// There is no touch: a key or a screen reader holds the view.
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
