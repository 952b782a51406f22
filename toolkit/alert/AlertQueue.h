#pragma once

#include "toolkit/object/Object.h"

#include <deque>

namespace brimsound::toolkit {

class Alert;
class Overlay;
class Window;

/// Shows the alerts of a window one at a time, in the order in which they were added, each over the dimmed
/// window.
class AlertQueue {
public:
    /// The window owns the queue and outlives it.
    explicit AlertQueue(Window&);
    AlertQueue(const AlertQueue&) = delete;
    AlertQueue& operator=(const AlertQueue&) = delete;
    ~AlertQueue();

    void add(Alert&);
    /// The visible alert; may be null.
    Alert* current() const { return _current.get(); }
    /// Removes the visible alert and shows the next one.
    void dismissCurrent();
    /// Removes all alerts without an answer.
    void dismissAll();

private:
    void showNext();

    Window& _window;
    std::deque<Ref<Alert>> _waiting;
    Ref<Alert> _current;
    Ref<Overlay> _overlay;
};

} // namespace brimsound::toolkit
