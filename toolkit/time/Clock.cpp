#include "toolkit/time/Clock.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double frame = 1.0 / 60;

} // namespace

Clock& Clock::shared()
{
    static Clock clock;
    return clock;
}

std::uint64_t Clock::after(double delay, std::function<void()> action)
{
    _actions.emplace(now() + delay, std::make_pair(++_lastNumber, std::move(action)));
    if (onChange)
        onChange();
    return _lastNumber;
}

// What an action holds may cancel other actions when it is destroyed. So an action is removed before it is
// destroyed.

Clock::~Clock()
{
    while (!_actions.empty())
        _actions.extract(_actions.begin());
}

void Clock::cancel(std::uint64_t number)
{
    const auto found
        = std::ranges::find_if(_actions, [&](const auto& action) { return action.second.first == number; });
    if (found != _actions.end())
        _actions.extract(found);
}

void Clock::onEveryFrame(std::function<bool(double)> step)
{
    _movements.push_back({ now(), std::move(step) });
    if (onChange)
        onChange();
}

std::optional<double> Clock::untilNextAction() const
{
    if (_actions.empty())
        return std::nullopt;
    return std::max(0.0, _actions.begin()->first - now());
}

void Clock::advance(double seconds)
{
    const double end = _now + seconds;
    // An action may start a movement. Without one, the time can be advanced to the next action.
    while (isAnimating() || !_actions.empty()) {
        const double next = isAnimating() ? _now + frame : _actions.begin()->first;
        if (next >= end)
            break;
        moveTo(next);
    }
    moveTo(end);
}

void Clock::moveTo(double time)
{
    while (!_actions.empty() && _actions.begin()->first <= time) {
        auto due = _actions.extract(_actions.begin());
        _now = std::max(_now, due.key());
        due.mapped().second();
    }
    _now = std::max(_now, time);
    step();
}

void Clock::step()
{
    // A step may start another movement, so the list must not change while it is iterated. A movement that
    // started at the real time may start after the time to which the clock has been advanced.
    auto movements = std::exchange(_movements, {});
    std::erase_if(movements,
        [this](const Movement& movement) { return !movement.step(std::max(0.0, _now - movement.start)); });
    movements.insert(movements.end(), std::make_move_iterator(_movements.begin()),
        std::make_move_iterator(_movements.end()));
    _movements = std::move(movements);
}

} // namespace brimsound::toolkit
