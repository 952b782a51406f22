#include "toolkit/view/Transition.h"

#include "toolkit/time/Clock.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

Transition::Changes& Transition::changes()
{
    static Changes current;
    return current;
}

void View::animate(double seconds, const std::function<void()>& changes, std::function<void()> completion)
{
    const auto outer = std::exchange(Transition::changes(), { .duration = seconds });
    changes();
    Transition::changes() = outer;
    if (completion)
        Clock::shared().after(seconds, std::move(completion));
}

template <typename Value>
void Transition::change(
    View& view, std::optional<Movement<Value>> Transition::*property, const Value& shown, const Value& value)
{
    auto& transition = view._transition;
    const auto [duration, fromValue] = changes();
    if (duration <= 0) {
        if (transition)
            ((*transition).*property).reset();
        return;
    }
    if (!transition)
        transition = std::make_unique<Transition>(view);
    const auto& from = fromValue ? value : shown;
    ((*transition).*property) = Movement<Value> { from, from, 0, duration };
    if (!transition->_animation.isRunning())
        transition->_animation.run([&moving = *transition](double seconds) { return moving.step(seconds); });
}

template void Transition::change(
    View&, std::optional<Movement<Rect>> Transition::*, const Rect&, const Rect&);
template void Transition::change(
    View&, std::optional<Movement<double>> Transition::*, const double&, const double&);
template void Transition::change(
    View&, std::optional<Movement<Color>> Transition::*, const Color&, const Color&);

bool Transition::step(double seconds)
{
    _view.setNeedsDisplay();
    const auto step = [seconds](auto& movement, const auto& target) {
        if (movement && !movement->step(target, seconds))
            movement.reset();
    };
    step(_frame, _view.frame());
    step(_alpha, _view.alpha());
    step(_background, _view.background().value_or(transparent));
    _view.reachChanged();
    _view.setNeedsDisplay();
    return isMoving();
}

} // namespace brimsound::toolkit
