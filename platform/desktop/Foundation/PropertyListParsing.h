#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <optional>
#include <span>

namespace brimsound::desktop {

/// Parses a property list, binary or XML. Nothing when the bytes are not a property list or exceed the
/// limits. Invalid bytes in texts are replaced. Every result can be written again.
std::optional<PropertyList> parsePropertyList(std::span<const std::byte>);

} // namespace brimsound::desktop
