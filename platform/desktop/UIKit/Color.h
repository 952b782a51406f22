// Conversions between the colors of the platform's interface and of the toolkit.
#pragma once

#include "platform/UIKit/UIColor.h"
#include "toolkit/drawing/Color.h"

#include <optional>

namespace brimsound::desktop {

using toolkit::Color;

/// The components of a color; fully transparent for null.
Color colorOf(const RetainPtr<UIColor>&);

/// The color; nothing for null.
std::optional<Color> toolkitColor(const RetainPtr<UIColor>&);
/// Null for nothing.
RetainPtr<UIColor> uiColor(const std::optional<Color>&);

} // namespace brimsound::desktop
