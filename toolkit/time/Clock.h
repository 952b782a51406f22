// The one clock of the view tree.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace brimsound::toolkit {

/// Time in seconds since the start. With a window it is the real time, and the main loop has the clock catch
/// up with it; without one it stands still until a script moves it forward. Everything that happens later or
/// moves is due here.
class Clock {
public:
    static Clock& shared();

    double now() const { return realTime ? realTime() : _now; }

    /// Calls the action once, `delay` seconds from now. The number cancels it.
    std::uint64_t after(double delay, std::function<void()> action);
    void cancel(std::uint64_t);

    /// Calls the step on every frame, with the time passed since this call in seconds, until it returns
    /// false.
    void onEveryFrame(std::function<bool(double elapsed)> step);

    /// Moves the time forward, calling what falls due on the way in the order in which it does.
    void advance(double seconds);
    /// Moves the time forward to now, for a clock that has a real time.
    void catchUp() { advance(now() - _now); }

    /// Whether something moves, so that frames are wanted.
    bool isAnimating() const { return !_movements.empty(); }
    /// Seconds until the next action falls due; nothing when none is.
    std::optional<double> untilNextAction() const;

    /// Set by the main loop: the seconds that have really passed since the start. Never goes back.
    std::function<double()> realTime;
    /// Set by the main loop: called when something was added.
    std::function<void()> onChange;

private:
    struct Movement {
        double start;
        std::function<bool(double)> step;
    };

    void moveTo(double time);
    void step();

    double _now = 0;
    std::uint64_t _lastNumber = 0;
    std::multimap<double, std::pair<std::uint64_t, std::function<void()>>> _actions;
    std::vector<Movement> _movements;
};

} // namespace brimsound::toolkit
