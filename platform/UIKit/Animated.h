#pragma once

namespace brimsound {

/// Whether a change is animated.
enum class Animated { No, Yes };

} // namespace brimsound
