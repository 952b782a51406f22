#include "toolkit/time/Animation.h"

#include "toolkit/time/Clock.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

/// Shared by the clock and the animation, because either may be destroyed first.
struct Animation::Movement {
    bool isRunning = true;
};

double linear(double progress)
{
    return progress;
}

double easeInOut(double progress)
{
    // The curve gives x(s) and y(s). Bisection finds s, because x increases with s.
    const auto bezier = [](double first, double second, double s) {
        return 3 * first * s * (1 - s) * (1 - s) + 3 * second * s * s * (1 - s) + s * s * s;
    };
    double low = 0;
    double high = 1;
    for (int halving = 0; halving < 30; ++halving) {
        const double middle = (low + high) / 2;
        (bezier(0.42, 0.58, middle) < progress ? low : high) = middle;
    }
    return bezier(0, 1, high);
}

double easeOut(double progress)
{
    return progress * (2 - progress);
}

std::shared_ptr<Animation::Movement> Animation::begin()
{
    cancel();
    _movement = std::make_shared<Movement>();
    return _movement;
}

void Animation::start(double seconds, double (*curve)(double), std::function<void(double)> step,
    std::function<void()> completion)
{
    Clock::shared().onEveryFrame([movement = begin(), seconds, curve, step = std::move(step),
                                     completion = std::move(completion)](double elapsed) {
        if (!movement->isRunning)
            return false;
        const double progress = seconds > 0 ? std::clamp(elapsed / seconds, 0.0, 1.0) : 1;
        step(curve(progress));
        if (!movement->isRunning || progress < 1)
            return movement->isRunning;
        movement->isRunning = false;
        if (completion)
            completion();
        return false;
    });
}

void Animation::run(std::function<bool(double)> step)
{
    Clock::shared().onEveryFrame(
        [movement = begin(), step = std::move(step), before = 0.0](double elapsed) mutable {
            if (movement->isRunning && !step(elapsed - std::exchange(before, elapsed)))
                movement->isRunning = false;
            return movement->isRunning;
        });
}

void Animation::wait(double seconds, std::function<void()> action)
{
    cancel();
    _action = Clock::shared().after(seconds, [this, action = std::move(action)] {
        _action = 0;
        action();
    });
}

void Animation::cancel()
{
    if (_movement)
        _movement->isRunning = false;
    _movement = nullptr;
    if (_action)
        Clock::shared().cancel(std::exchange(_action, 0));
}

bool Animation::isRunning() const
{
    return _action || (_movement && _movement->isRunning);
}

} // namespace brimsound::toolkit
