// Animations of views.
#pragma once

namespace brimsound::doubles {

/// Forgets every animation that was begun and not committed.
void resetAnimations();

} // namespace brimsound::doubles
