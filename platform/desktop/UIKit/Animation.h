// Movements of a view from how it looks to how it is.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/desktop/UIKit/Color.h"

#include <optional>

namespace brimsound::desktop {

struct ViewPeer;

/// One property on its way to the value that the view has already.
template <typename Value> struct Movement {
    Value from;
    Value shown;
    /// On the clock, in seconds.
    double start;
    double duration;
};

/// What moves about one view. It lives from the first movement's start to the last one's end.
struct Animation {
    std::optional<Movement<CGRect>> frame;
    std::optional<Movement<double>> alpha;
    std::optional<Movement<Color>> background;
};

/// Has a property that is about to change move from how it shows now; outside of an animation, has it change
/// at once, wherever it was moving.
template <typename Value>
void startFrom(ViewPeer&, const Value& shown, std::optional<Movement<Value>> Animation::*property);

/// The platform's default curve, ease in and ease out: the cubic Bézier curve through (0, 0), (0.42, 0),
/// (0.58, 1) and (1, 1). Both ways from 0 to 1.
double eased(double progress);

} // namespace brimsound::desktop
