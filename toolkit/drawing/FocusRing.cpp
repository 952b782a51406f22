#include "toolkit/drawing/FocusRing.h"

#include "toolkit/drawing/Theme.h"

namespace brimsound::toolkit {

namespace {

constexpr double lineWidth = 2;

} // namespace

void drawFocusRing(const FocusRing& ring, Canvas& canvas)
{
    if (ring.rect.size.width > 0 && ring.rect.size.height > 0)
        canvas.strokeRoundedRect(ring.rect, ring.radius, lineWidth, theme::tint);
}

} // namespace brimsound::toolkit
