// The scale of the screen that the pane is shown on.
#pragma once

namespace brimsound::desktop {

/// What UIScreen says from now on, in pixels a point; 2 until then. Process-wide, for whoever shows the pane.
void setScreenScale(double);

} // namespace brimsound::desktop
