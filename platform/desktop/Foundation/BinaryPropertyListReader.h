// Reading the binary property-list format.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <optional>
#include <span>

namespace brimsound::desktop {

/// Whether the bytes start as a binary property list does.
bool isBinaryPropertyList(std::span<const std::byte>);

/// The property list that the bytes are, exactly, its dictionaries in the order of the file. Bytes of an
/// ASCII text that are no ASCII are taken for UTF-8, with U+FFFD in place of what is none. Nothing for bytes
/// that are no property list of version 00, and for one out of bounds, an object that contains itself among
/// them.
std::optional<PropertyList> readBinaryPropertyList(std::span<const std::byte>);

} // namespace brimsound::desktop
