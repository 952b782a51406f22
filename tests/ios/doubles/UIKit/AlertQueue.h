// The alerts that are shown one after the other.
#pragma once

namespace brimsound::doubles {

/// Takes all of them away, and tells nobody.
void dismissAlerts();

} // namespace brimsound::doubles
