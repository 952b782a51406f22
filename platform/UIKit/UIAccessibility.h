// Properties of a view for screen readers.
#pragma once

#include <cstdint>

namespace brimsound {

/// A set of traits, with the platform's numbers.
using UIAccessibilityTraits = std::uint64_t;

inline constexpr UIAccessibilityTraits UIAccessibilityTraitNone = 0;
/// The selected one in its group.
inline constexpr UIAccessibilityTraits UIAccessibilityTraitSelected = 1u << 3;

} // namespace brimsound
