// What a screen reader is told that a view does not say in words of its own.
#pragma once

#include <cstdint>

namespace brimsound {

/// A set of what is so about a view, with the platform's numbers.
using UIAccessibilityTraits = std::uint64_t;

inline constexpr UIAccessibilityTraits UIAccessibilityTraitNone = 0;
/// It is the chosen one among those beside it.
inline constexpr UIAccessibilityTraits UIAccessibilityTraitSelected = 1u << 3;

} // namespace brimsound
