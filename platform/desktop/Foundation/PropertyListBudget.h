// Limits of memory and time for property lists, as a protection against malicious files.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>

namespace brimsound::desktop {

/// The maximum nesting depth of containers.
inline constexpr std::size_t deepestPropertyList = 512;
/// The maximum length of a file in bytes. The pane's own file has a few thousand. The XML parser holds
/// several copies of a text, so it accepts less.
inline constexpr std::size_t longestPropertyListFile = std::size_t { 32 } << 20;
inline constexpr std::size_t longestMarkupFile = std::size_t { 8 } << 20;

/// Counts the memory of values before it is allocated. A value costs the same when it is read and when it is
/// written, and never less than its size in a binary file. So everything that was read can be written, and
/// everything that was written can be read.
class PropertyListBudget {
public:
    // Each function subtracts the cost, or returns false when less is left.

    /// The elements of an array or a set, without their contents.
    bool takeValues(std::size_t count) { return take(perBlock) && take(count, sizeof(PropertyList)); }
    /// The entries of a dictionary, with their positions in its index.
    bool takeEntries(std::size_t count)
    {
        return take(2 * perBlock)
            && take(count, sizeof(PropertyListDictionary::Entry) + sizeof(std::uint32_t));
    }
    bool takeData(std::size_t length) { return take(perBlock) && take(length, 1); }
    /// A text or a key, in bytes of UTF-8. Counted twice because it may be UTF-16 in a file.
    bool takeText(std::size_t length) { return take(length, 2); }

private:
    /// The cost of a memory block to the allocator, and of the object that owns it.
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
