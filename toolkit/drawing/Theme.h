// The colors and sizes of all views.
#pragma once

#include "toolkit/drawing/Color.h"

namespace brimsound::toolkit::theme {

inline constexpr Color background { 0.937, 0.937, 0.957 };
inline constexpr Color rowBackground { 1, 1, 1 };
inline constexpr Color rowPressed { 0.851, 0.851, 0.851 };
inline constexpr Color destructive { 1, 0.231, 0.188 };
inline constexpr Color destructivePressed { 0.8, 0.185, 0.15 };
inline constexpr Color separator { 0.784, 0.780, 0.800 };
inline constexpr Color text { 0, 0, 0 };
inline constexpr Color secondaryText { 0.427, 0.427, 0.447 };
inline constexpr Color tint { 0, 0.478, 1 };
inline constexpr Color barBackground { 0.973, 0.973, 0.973 };
inline constexpr Color barSeparator { 0.698, 0.698, 0.698 };
inline constexpr Color chevron { 0.780, 0.780, 0.800 };
inline constexpr Color sliderTrack { 0.84, 0.84, 0.85 };
inline constexpr Color switchOn { 0.298, 0.851, 0.392 };
inline constexpr Color switchOff { 0.894, 0.894, 0.902 };
inline constexpr Color scrollIndicator { 0, 0, 0, 0.35 };

/// Space between a row's edges and its contents.
inline constexpr double rowMargin = 15;
/// The PostScript name of titles' font.
inline constexpr auto boldFont = "HelveticaNeue-SemiBold";
inline constexpr double textSize = 17;
inline constexpr double smallTextSize = 13;

} // namespace brimsound::toolkit::theme
