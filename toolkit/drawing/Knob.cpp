#include "toolkit/drawing/Knob.h"

namespace brimsound::toolkit {

namespace {

constexpr double shadowDrop = 1.5;
constexpr int shadowLayers = 8;
constexpr Color shadow { 0, 0, 0, 0.028 };
constexpr Color rim { 0, 0, 0, 0.10 };
constexpr Color white { 1, 1, 1 };

} // namespace

void drawKnob(Canvas& canvas, const Rect& rect)
{
    // The sum of several faint discs is darker toward the middle.
    for (int layer = shadowLayers; layer > 0; --layer) {
        const double spread = (knobShadowReach - shadowDrop) * layer / shadowLayers;
        auto disc = inset(rect, -spread, -spread);
        disc.origin.y += shadowDrop;
        canvas.fillEllipse(disc, shadow);
    }
    canvas.fillEllipse(inset(rect, -0.5, -0.5), rim);
    canvas.fillEllipse(rect, white);
}

} // namespace brimsound::toolkit
