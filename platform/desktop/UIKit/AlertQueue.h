// The alerts of a window.
#pragma once

#include "platform/UIKit/UIAlertView.h"
#include "platform/desktop/UIKit/Overlay.h"

#include <deque>

namespace brimsound::desktop {

/// Shows one alert at a time, in the order in which they were asked for, each over the dimmed window.
class AlertQueue {
public:
    /// The window owns the queue and outlives it.
    explicit AlertQueue(UIView& window);
    AlertQueue(const AlertQueue&) = delete;
    AlertQueue& operator=(const AlertQueue&) = delete;
    ~AlertQueue();

    void add(UIAlertView&);
    /// The alert that is shown; null when none is.
    UIAlertView* current() const;
    /// Takes the shown alert away and shows the next one.
    void dismissCurrent();
    /// Forgets all alerts, unanswered.
    void dismissAll();

private:
    void showNext();

    UIView& _window;
    std::deque<RetainPtr<UIAlertView>> _waiting;
    RetainPtr<UIAlertView> _current;
    RetainPtr<Overlay> _overlay;
};

} // namespace brimsound::desktop
