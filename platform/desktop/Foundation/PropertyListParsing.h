// Property lists out of bytes.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <optional>
#include <span>

namespace brimsound::desktop {

/// The property list that the bytes are, binary or in XML. Nothing when they are none, or one out of bounds.
/// Bytes in a text that are no text are replaced. Whatever was read can be written again.
std::optional<PropertyList> parsePropertyList(std::span<const std::byte>);

} // namespace brimsound::desktop
