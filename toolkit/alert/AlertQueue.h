// The alerts of a window.
#pragma once

#include "toolkit/object/Object.h"

#include <deque>

namespace brimsound::toolkit {

class Alert;
class Overlay;
class Window;

/// Shows one alert at a time, in the order in which they were asked for, each over the dimmed window.
class AlertQueue {
public:
    /// The window owns the queue and outlives it.
    explicit AlertQueue(Window&);
    AlertQueue(const AlertQueue&) = delete;
    AlertQueue& operator=(const AlertQueue&) = delete;
    ~AlertQueue();

    void add(Alert&);
    /// The alert that is shown; null when none is.
    Alert* current() const { return _current.get(); }
    /// Removes the shown alert and shows the next one.
    void dismissCurrent();
    /// Forgets all alerts, unanswered.
    void dismissAll();

private:
    void showNext();

    Window& _window;
    std::deque<Ref<Alert>> _waiting;
    Ref<Alert> _current;
    Ref<Overlay> _overlay;
};

} // namespace brimsound::toolkit
