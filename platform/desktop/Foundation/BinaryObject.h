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
    /// Of a text: whether it takes one byte a character, and its count in the file.
    bool isAscii = true;
    std::uint32_t units = 0;
    /// The value of a boolean, a UID, the lower half of an integer; the bits of a real or a date. Of a
    /// container the index of its first reference.
    std::uint64_t number = 0;
    /// The upper half of an integer. Of a container the count of its references.
    std::uint64_t more = 0;
    /// Of a text or data: those of the value that is written.
    std::string_view bytes {};

    /// Whether both are written as the same bytes. For objects that are no containers.
    bool isSameAs(const Object& other) const
    {
        return type == other.type && number == other.number && more == other.more && bytes == other.bytes;
    }
};

/// The object of a value that is no container; nothing for null and for containers.
std::optional<Object> scalarObject(const PropertyList&);

/// Whether and how a text can be written: fills in `isAscii` and `units`. False when it is not UTF-8.
bool measureText(Object&);

/// The shortest size of an integer in bytes: 1, 2, 4, 8 or, for one that does not fit into 64 bits, 16.
std::size_t integerSize(const Object&);
/// The shortest size of a number without a sign in bytes: 1, 2, 4 or 8.
std::size_t numberSize(std::uint64_t);

/// What the object counts: its bytes, units, elements or entries.
std::uint64_t countOf(const Object&);
/// The object's size in bytes when a reference has that many.
std::size_t sizeOf(const Object&, std::size_t referenceSize);

} // namespace brimsound::desktop::binary
