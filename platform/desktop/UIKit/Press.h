// Touches made on behalf of those who cannot point.
#pragma once

#include "platform/UIKit/UISlider.h"

namespace brimsound::desktop {

/// Both scrolls the view into view and touches it through its window, as a mouse does. False when it cannot
/// be touched: it is covered, or a touch is down already.

/// Touches the middle of the view: down and up.
bool press(UIView&);

/// Takes the slider by its thumb, brings that to where the value is, and lets go.
bool slideTo(UISlider&, double value);

/// Scrolls what scrolls by so many of its heights, downwards when positive.
void scrollPages(UIView& scrollView, double pages);

} // namespace brimsound::desktop
