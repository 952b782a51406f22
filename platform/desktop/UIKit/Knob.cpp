#include "platform/desktop/UIKit/Knob.h"

#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound::desktop {

namespace {

constexpr double shadowDrop = 1.5;
constexpr int shadowLayers = 8;
constexpr Color shadow { 0, 0, 0, 0.028 };
constexpr Color rim { 0, 0, 0, 0.10 };
constexpr Color white { 1, 1, 1 };

} // namespace

void drawKnob(Canvas& canvas, const CGRect& rect)
{
    // Faint discs one on the other grow darker towards the middle.
    for (int layer = shadowLayers; layer > 0; --layer) {
        const double spread = (knobShadowReach - shadowDrop) * layer / shadowLayers;
        auto disc = insetBy(rect, -spread, -spread);
        disc.origin.y += shadowDrop;
        canvas.fillEllipse(disc, shadow);
    }
    canvas.fillEllipse(insetBy(rect, -0.5, -0.5), rim);
    canvas.fillEllipse(rect, white);
}

} // namespace brimsound::desktop
