#pragma once

namespace brimsound::desktop {

/// Sets the scale that UIScreen returns, in pixels per point, for the whole process. Initially 2.
void setScreenScale(double);

} // namespace brimsound::desktop
