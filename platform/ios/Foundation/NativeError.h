// Conversion of errors between the platform and the product.
#pragma once

#include "platform/Foundation/NSError.h"
#include "platform/ios/Foundation/NativeText.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace brimsound::ios {

/// Nothing for nil.
inline std::optional<NSError> errorOf(::NSError* native)
{
    if (!native)
        return std::nullopt;
    return NSError { textOf([native domain]), static_cast<long>([native code]),
        textOf([native localizedDescription]) };
}

} // namespace brimsound::ios
