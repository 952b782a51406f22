#include "platform/desktop/UIKit/FocusRing.h"

#include "platform/desktop/UIKit/Theme.h"

namespace brimsound::desktop {

namespace {

constexpr double lineWidth = 2;

} // namespace

void drawFocusRing(const FocusRing& ring, Canvas& canvas)
{
    if (ring.rect.size.width > 0 && ring.rect.size.height > 0)
        canvas.strokeRoundedRect(ring.rect, ring.radius, lineWidth, theme::tint);
}

} // namespace brimsound::desktop
