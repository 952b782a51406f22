// Keeps hostile property-list files away from the parser, which recurses and expands without bounds.
#pragma once

#include <cstddef>
#include <span>

namespace brimsound::desktop {

/// How deep containers may lie in one another.
inline constexpr std::size_t deepestPropertyList = 512;
/// How long a file may be, and how much it may grow to with every shared object expanded, in bytes.
inline constexpr std::size_t largestPropertyList = std::size_t { 128 } << 20;

/// Whether the file's contents stay within these bounds when parsed. Says nothing about their being well
/// formed.
bool isWithinBounds(std::span<const std::byte> contents);

} // namespace brimsound::desktop
