// Strings of Foundation as the toolkit's, and back.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace brimsound::doubles {

/// Empty for nil.
inline std::string textOf(::NSString* text)
{
    return text ? [text UTF8String] : "";
}

inline ::NSString* nsString(const std::string& text)
{
    return [::NSString stringWithUTF8String:text.c_str()];
}

/// Nil for an empty text.
inline ::NSString* textOrNil(const std::string& text)
{
    return text.empty() ? nil : nsString(text);
}

} // namespace brimsound::doubles
