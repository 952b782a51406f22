// Keeps hostile property-list files away from the parser, which recurses and expands without bounds, and ends
// the process over a NUL in a key.
#pragma once

#include <cstddef>
#include <span>

namespace brimsound::desktop {

/// How deep containers may lie in one another.
inline constexpr std::size_t deepestPropertyList = 512;
/// How long a file may be, in bytes. The pane's own has a few thousand.
inline constexpr std::size_t longestPropertyListFile = std::size_t { 8 } << 20;

/// Whether the file's contents stay within these bounds when parsed: they are nested no deeper than that,
/// take no more memory than 16 MiB and twenty times their own length, and less than two seconds. Says nothing
/// about their being well formed.
bool isWithinBounds(std::span<const std::byte> contents);

} // namespace brimsound::desktop
