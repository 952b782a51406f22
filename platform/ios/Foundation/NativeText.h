// Conversion of text between the platform and the product.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace brimsound::ios {

/// UTF-8; empty for nil. An unpaired surrogate is three bytes, encoded as if it were a character.
std::string textOf(::NSString*);

/// Autoreleased; nil for bytes that are not such UTF-8.
::NSString* nativeText(std::string_view);

} // namespace brimsound::ios
