// UIColors as the toolkit's colors, and back.
#pragma once

#include "toolkit/drawing/Color.h"

#import <UIKit/UIKit.h>

#include <optional>

namespace brimsound::doubles {

/// Nothing for nil.
std::optional<toolkit::Color> toolkitColor(::UIColor*);
/// Nil for nothing.
::UIColor* uiColor(const std::optional<toolkit::Color>&);

} // namespace brimsound::doubles
