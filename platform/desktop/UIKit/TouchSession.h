// The life of one touch.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/desktop/UIKit/Touch.h"

#include <cstdint>

namespace brimsound::desktop {

/// Decides whether a touch belongs to the view that it hit or scrolls what that view lies in. A finger on a
/// view within a scroll view is held back for a moment: when it starts to move up or down within that time it
/// scrolls, and the view never hears of it. Once a control has the touch, it keeps it.
class TouchSession {
public:
    TouchSession() = default;
    TouchSession(const TouchSession&) = delete;
    TouchSession& operator=(const TouchSession&) = delete;
    ~TouchSession();

    bool isActive() const { return _phase != Phase::None; }

    /// `hit` is the frontmost view at the touch.
    void begin(UIView& hit, const Touch&);
    void move(CGPoint);
    void end(CGPoint);
    void cancel();

private:
    enum class Phase {
        None,
        /// Nobody has heard of the touch yet.
        HeldBack,
        /// The view that was hit has it.
        WithView,
        /// It scrolls.
        Scrolling,
    };

    void handOver();
    void startScrolling();
    void finish();
    bool movesUpOrDown(CGPoint) const;

    Phase _phase = Phase::None;
    Touch _first;
    Touch _last;
    RetainPtr<UIView> _view;
    RetainPtr<UIView> _scrollView;
    std::uint64_t _timer = 0;
};

} // namespace brimsound::desktop
