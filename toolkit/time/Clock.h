#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace brimsound::toolkit {

/// The clock of all views. Times are seconds since the start. In a window the main loop advances it to the
/// real time; without a window it stands still until a script advances it.
class Clock {
public:
    static Clock& shared();

    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    ~Clock();

    double now() const { return realTime ? realTime() : _now; }

    /// Calls the action once, `delay` seconds from now. The returned number cancels it.
    std::uint64_t after(double delay, std::function<void()> action);
    void cancel(std::uint64_t);

    /// Calls the step on every frame, with the time passed since this call in seconds, until it returns
    /// false.
    void onEveryFrame(std::function<bool(double elapsed)> step);

    /// Advances the time, and calls what is due until then, in order.
    void advance(double seconds);
    /// Advances to the real time.
    void catchUp() { advance(now() - _now); }

    /// Whether something is called on every frame.
    bool isAnimating() const { return !_movements.empty(); }
    /// Seconds until the next action; nothing without actions.
    std::optional<double> untilNextAction() const;

    /// Set by the main loop: the real time since the start, in seconds. It must not decrease.
    std::function<double()> realTime;
    /// Set by the main loop: called when an action or a function for every frame was added.
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
