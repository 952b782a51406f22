// Text as the platform and as the product hold it.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace brimsound::ios {

/// In UTF-8; empty for nil. Half a surrogate pair is three bytes, encoded as if it were a character.
std::string textOf(::NSString*);

/// Autoreleased; nil for bytes that are not such UTF-8.
::NSString* nativeText(std::string_view);

} // namespace brimsound::ios
