// Property lists out of bytes.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <optional>
#include <span>

namespace brimsound::desktop {

/// The property list that the bytes are, in any format. Nothing when they are none, or one out of bounds.
/// Bytes in a string that are no text are replaced, so that whatever was read can be written again.
std::optional<PropertyList> parsePropertyList(std::span<const std::byte>);

} // namespace brimsound::desktop
