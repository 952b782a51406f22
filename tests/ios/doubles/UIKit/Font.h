// UIFonts as the toolkit's fonts, and back.
#pragma once

#include "toolkit/drawing/Font.h"

#import <UIKit/UIKit.h>

#include <optional>

namespace brimsound::doubles {

/// Nothing for nil.
std::optional<toolkit::Font> toolkitFont(::UIFont*);
/// Nil for nothing. The toolkit's font without a name is the system font.
::UIFont* uiFont(const std::optional<toolkit::Font>&);

} // namespace brimsound::doubles
