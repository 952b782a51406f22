// What a property list may cost, so that a hostile file takes neither the memory nor the time.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>

namespace brimsound::desktop {

/// How deep values may lie in containers.
inline constexpr std::size_t deepestPropertyList = 512;
/// How long a file may be, in bytes. The pane's own has a few thousand. The parser of markup holds a text
/// several times, so that less of it fits.
inline constexpr std::size_t longestPropertyListFile = std::size_t { 32 } << 20;
inline constexpr std::size_t longestMarkupFile = std::size_t { 8 } << 20;

/// Counts what values take in memory before they take it. The same values cost the same when they are read as
/// when they are written, and never less than they take in a binary file: what was read can be written, and
/// what was written can be read.
class PropertyListBudget {
public:
    // Each takes what that costs, or gives false when less is left.

    /// The elements of an array or a set, without what they hold themselves.
    bool takeValues(std::size_t count) { return take(perBlock) && take(count, sizeof(PropertyList)); }
    /// The entries of a dictionary, with their place in its index.
    bool takeEntries(std::size_t count)
    {
        return take(2 * perBlock)
            && take(count, sizeof(PropertyListDictionary::Entry) + sizeof(std::uint32_t));
    }
    bool takeData(std::size_t length) { return take(perBlock) && take(length, 1); }
    /// A text or a key, in bytes of UTF-8. Twice its length, as in a file it may be UTF-16.
    bool takeText(std::size_t length) { return take(length, 2); }

private:
    /// What the allocator takes for a block, and the block's owner to hold it.
    static constexpr std::size_t perBlock = 32;

    bool take(std::size_t bytes) { return take(bytes, 1); }
    bool take(std::size_t count, std::size_t bytesEach)
    {
        if (count > _bytesLeft / bytesEach)
            return false;
        _bytesLeft -= count * bytesEach;
        return true;
    }

    std::size_t _bytesLeft = std::size_t { 24 } << 20;
};

} // namespace brimsound::desktop
