#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace brimsound::toolkit {

// Curves: functions of the progress, both from 0 to 1.

/// Constant speed.
double linear(double progress);
/// The cubic Bézier curve through (0, 0), (0.42, 0), (0.58, 1) and (1, 1).
double easeInOut(double progress);
/// Decreasing speed: the parabola with its vertex at (1, 1).
double easeOut(double progress);

/// Runs one movement at a time on the clock. Starting another one, and destroying the animation, cancels the
/// current one. A canceled movement does not complete. Steps and completions may start and cancel movements,
/// and may destroy the animation.
class Animation {
public:
    Animation() = default;
    Animation(const Animation&) = delete;
    Animation& operator=(const Animation&) = delete;
    ~Animation() { cancel(); }

    /// Calls the step on every frame with the value of the curve, and the completion after the step at 1.
    void start(double seconds, double (*curve)(double), std::function<void(double progress)> step,
        std::function<void()> completion = nullptr);
    /// Calls the step on every frame with the seconds since the frame before, until it returns false.
    void run(std::function<bool(double seconds)> step);
    /// Calls the action once after this many seconds.
    void wait(double seconds, std::function<void()> action);
    void cancel();

    bool isRunning() const;

private:
    struct Movement;

    std::shared_ptr<Movement> begin();

    std::shared_ptr<Movement> _movement;
    /// The clock's number of the action; 0 while none waits.
    std::uint64_t _action = 0;
};

} // namespace brimsound::toolkit
