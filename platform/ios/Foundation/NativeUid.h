// UIDs of keyed archives as the platform holds them. No public interface makes or reads them, so they are
// reached by name where the platform has them; elsewhere, and in XML, one is a dictionary of the one key
// "CF$UID".
#pragma once

#include "platform/Foundation/PropertyList.h"

#import <Foundation/Foundation.h>

#include <optional>

namespace brimsound::ios {

/// The UID that the native value is; nothing for any other value.
std::optional<PropertyList::Uid> uidOf(id native);

/// Autoreleased; nil for one beyond 32 bits, which the platform does not have.
id nativeUid(PropertyList::Uid);

} // namespace brimsound::ios
