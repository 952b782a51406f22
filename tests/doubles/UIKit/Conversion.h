// Values of UIKit as the toolkit's, and back.
#pragma once

#include "toolkit/drawing/Color.h"
#include "toolkit/drawing/Font.h"
#include "toolkit/geometry/Geometry.h"

#import <UIKit/UIKit.h>

#include <concepts>
#include <optional>
#include <string>

namespace brimsound::doubles {

// Numbers are the same.
template <typename Number>
requires std::integral<Number> || std::floating_point<Number> Number toToolkit(Number number)
{
    return number;
}

template <typename Number>
requires std::integral<Number> || std::floating_point<Number> Number toPlatform(Number number)
{
    return number;
}

inline toolkit::Rect toToolkit(const ::CGRect& rect)
{
    return toolkit::makeRect(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
}

inline ::CGRect toPlatform(const toolkit::Rect& rect)
{
    return ::CGRectMake(rect.left(), rect.top(), rect.size.width, rect.size.height);
}

// Nil is an empty text.

inline std::string toToolkit(::NSString* text)
{
    return text ? [text UTF8String] : "";
}

inline ::NSString* toPlatform(const std::string& text)
{
    return text.empty() ? nil : [::NSString stringWithUTF8String:text.c_str()];
}

// Nil is no color and no font. The toolkit's font without a name is the system font.
std::optional<toolkit::Color> toToolkit(::UIColor*);
::UIColor* toPlatform(const std::optional<toolkit::Color>&);
std::optional<toolkit::Font> toToolkit(::UIFont*);
::UIFont* toPlatform(const std::optional<toolkit::Font>&);

} // namespace brimsound::doubles
