// The platform's representation of the UIDs of keyed archives. There is no public interface to create or read
// them, so the functions are looked up by name where the platform has them. Elsewhere, and in XML, a UID is a
// dictionary with the single key "CF$UID".
#pragma once

#include "platform/Foundation/PropertyList.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace brimsound::ios {

/// The UID in the native value; nothing for any other value.
std::optional<PropertyList::Uid> uidOf(id native);

/// Autoreleased; nil for a UID that exceeds 32 bits, which the platform does not support.
id nativeUid(PropertyList::Uid);

} // namespace brimsound::ios
