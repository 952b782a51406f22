// How a change is shown.
#pragma once

namespace brimsound {

/// Whether a change is shown as a movement.
enum class Animated { No, Yes };

} // namespace brimsound
