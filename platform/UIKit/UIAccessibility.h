// Properties of a view for screen readers.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace brimsound {

/// A set of traits, with the platform's numbers.
using UIAccessibilityTraits = std::uint64_t;

inline constexpr UIAccessibilityTraits UIAccessibilityTraitNone = 0;
/// The selected one in its group.
inline constexpr UIAccessibilityTraits UIAccessibilityTraitSelected = 1u << 3;

/// How the mouse, keys and screen readers change the value of a control, and how the latter say it.
struct UIAccessibilityAdjustment {
    /// What one step changes the value by, and a large one.
    double step = 0;
    double largeStep = 0;
    /// Said after the number by readers that say the number: "dB".
    std::string unit;
    /// The value in words, with its unit.
    std::string (*valueText)(double value) = nullptr;
    /// What a double click on the thumb and the key 0 set, where there is a mouse or a keyboard; nothing when
    /// they do nothing.
    std::optional<double> neutralValue = std::nullopt;
};

} // namespace brimsound
