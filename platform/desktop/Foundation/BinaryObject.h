// One object of a binary property list that is being written.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace brimsound::desktop::binary {

enum class ObjectType : std::uint8_t {
    Null,
    Boolean,
    Integer,
    Single,
    Double,
    Date,
    Uid,
    Data,
    Text,
    Array,
    Set,
    Dictionary,
};

struct Object {
    ObjectType type = ObjectType::Null;
    /// For a text: whether it takes one byte per character, and its length in the file.
    bool isAscii = true;
    std::uint32_t units = 0;
    /// The value of a boolean or UID, the lower half of an integer, or the bits of a real or date. For a
    /// container, the index of its first reference.
    std::uint64_t number = 0;
    /// The upper half of an integer. For a container, the number of its references.
    std::uint64_t more = 0;
    /// For a text or data: the bytes of the original value.
    std::string_view bytes {};

    /// Whether both objects are written as the same bytes. Not for containers.
    bool isSameAs(const Object& other) const
    {
        return type == other.type && number == other.number && more == other.more && bytes == other.bytes;
    }
};

/// The object for a value that is not a container; nothing for null and for containers.
std::optional<Object> scalarObject(const PropertyList&);

/// Determines how a text is written: sets `isAscii` and `units`. Returns false when it is not UTF-8.
bool measureText(Object&);

/// The smallest size of an integer in bytes: 1, 2, 4, 8 or, when it does not fit into 64 bits, 16.
std::size_t integerSize(const Object&);
/// The smallest size of an unsigned number in bytes: 1, 2, 4 or 8.
std::size_t numberSize(std::uint64_t);

/// The object's count: bytes, units, elements or entries.
std::uint64_t countOf(const Object&);
/// The object's size in bytes, given the size of a reference.
std::size_t sizeOf(const Object&, std::size_t referenceSize);

} // namespace brimsound::desktop::binary
