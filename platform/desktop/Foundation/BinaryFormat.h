// The binary property-list format, version 00. The reader and the writer share these definitions.
//
// The file starts with "bplist00". The objects follow. Each begins with a marker byte: the upper four bits
// give the kind, the lower four a size or count, where 15 means that the count follows as an integer object.
// Containers refer to their members by number. After the objects come a table with the offset of each object,
// and the trailer. All numbers are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brimsound::desktop::binary {

inline constexpr std::string_view magic = "bplist00";

/// Markers without a size or count.
enum Marker : std::uint8_t {
    NullMarker = 0x00,
    FalseMarker = 0x08,
    TrueMarker = 0x09,
    SingleMarker = 0x22,
    DoubleMarker = 0x23,
    DateMarker = 0x33,
};

/// The upper four bits of the other markers.
enum Kind : std::uint8_t {
    /// The lower bits are the binary logarithm of the size in bytes. Up to four bytes are unsigned, more are
    /// two's complement.
    IntegerKind = 0x1,
    DataKind = 0x4,
    AsciiKind = 0x5,
    /// The count is in units of two bytes.
    Utf16Kind = 0x6,
    /// The size in bytes is one more than the lower bits.
    UidKind = 0x8,
    ArrayKind = 0xA,
    SetKind = 0xC,
    /// References to all keys, then references to all values.
    DictionaryKind = 0xD,
};

/// The marker's count when the actual count follows as an integer object.
inline constexpr std::size_t countFollows = 0xF;

/// The trailer begins with five unused bytes and the sort version. The offsets below are relative to its
/// start.
inline constexpr std::size_t trailerSize = 32;
inline constexpr std::size_t offsetSizeInTrailer = 6;
inline constexpr std::size_t referenceSizeInTrailer = 7;
inline constexpr std::size_t objectCountInTrailer = 8;
inline constexpr std::size_t rootInTrailer = 16;
inline constexpr std::size_t offsetTableInTrailer = 24;

} // namespace brimsound::desktop::binary
