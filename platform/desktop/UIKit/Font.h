// Conversions between the fonts of the platform's interface and of the toolkit.
#pragma once

#include "platform/UIKit/UIFont.h"
#include "toolkit/drawing/Font.h"

#include <optional>

namespace brimsound::desktop {

/// Nothing for null.
std::optional<toolkit::Font> toolkitFont(const RetainPtr<UIFont>&);
/// Null for nothing.
RetainPtr<UIFont> uiFont(const std::optional<toolkit::Font>&);

} // namespace brimsound::desktop
