// Movements of a view from how it looks to how it is.
#pragma once

#include "tests/ios/doubles/Doubles.h"

#include <optional>

namespace brimsound::doubles {

/// One property on its way to the value that the view has already.
template <typename Value> struct Movement {
    Value from;
    /// On the clock, in seconds.
    double start;
    double duration;
};

/// What moves about one view.
struct Animation {
    std::optional<Movement<CGRect>> frame;
    std::optional<Movement<CGFloat>> alpha;
    std::optional<Movement<Components>> background;
};

/// What is seen of a property that has that value.
template <typename Value> Value shown(const std::optional<Movement<Value>>&, const Value&);

/// Has a property move that is about to change from that value; outside of an animation, has it change at
/// once, wherever it was moving.
template <typename Value> void willChange(std::optional<Movement<Value>>&, const Value&);

/// What the clock shows, in seconds.
double currentTime();

/// Forgets every animation that was begun and not committed.
void resetAnimations();

} // namespace brimsound::doubles
