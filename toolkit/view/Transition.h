#pragma once

#include "toolkit/drawing/Color.h"
#include "toolkit/geometry/Geometry.h"
#include "toolkit/time/Animation.h"
#include "toolkit/view/View.h"

#include <algorithm>
#include <optional>

namespace brimsound::toolkit {

/// The animated change of one property. Times are seconds.
template <typename Value> struct Movement {
    Value from;
    Value shown;
    double elapsed = 0;
    double duration = 0;

    /// False at the end.
    bool step(const Value& target, double seconds)
    {
        elapsed += seconds;
        const double progress = std::max(0.0, elapsed / duration);
        if (progress >= 1)
            return false;
        shown = between(from, target, easeInOut(progress));
        return true;
    }
};

/// The animated changes of one view.
class Transition {
public:
    explicit Transition(View& view)
        : _view(view)
    {
    }

    /// How changes of properties are currently animated.
    struct Changes {
        /// In seconds; 0 for changes without an animation.
        double duration = 0;
        /// Whether the animation of a property starts at the value that was set before, instead of the value
        /// that is shown.
        bool fromValue = false;
    };
    /// For code that cannot make all changes in one call of View::animate.
    static Changes& changes();

    // Called before a property changes. Within View::animate the property is animated from its shown value to
    // the new one; otherwise it changes immediately, and its animation ends.
    static void frame(View& view) { change(view, &Transition::_frame, view.shownFrame(), view.frame()); }
    static void alpha(View& view) { change(view, &Transition::_alpha, view.shownAlpha(), view.alpha()); }
    static void background(View& view)
    {
        change(
            view, &Transition::_background, view.shownBackground(), view.background().value_or(transparent));
    }

    bool isMoving() const { return _frame || _alpha || _background; }
    Rect frame(const Rect& target) const { return _frame ? _frame->shown : target; }
    double alpha(double target) const { return _alpha ? _alpha->shown : target; }
    Color background(const Color& target) const { return _background ? _background->shown : target; }

private:
    template <typename Value>
    static void change(
        View&, std::optional<Movement<Value>> Transition::*, const Value& shown, const Value& value);
    bool step(double seconds);

    View& _view;
    std::optional<Movement<Rect>> _frame;
    std::optional<Movement<double>> _alpha;
    std::optional<Movement<Color>> _background;
    Animation _animation;
};

} // namespace brimsound::toolkit
