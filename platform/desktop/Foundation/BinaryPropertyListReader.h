#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <optional>
#include <span>

namespace brimsound::desktop {

/// Whether the bytes begin like a binary property list.
bool isBinaryPropertyList(std::span<const std::byte>);

/// Reads a property list that takes up exactly these bytes. Dictionaries keep the order of the file. An ASCII
/// text with other bytes is read as UTF-8, with U+FFFD for invalid bytes. Nothing when the bytes are not a
/// property list of version 00, when they exceed the limits (PropertyListBudget.h), or when an object
/// contains itself.
std::optional<PropertyList> readBinaryPropertyList(std::span<const std::byte>);

} // namespace brimsound::desktop
