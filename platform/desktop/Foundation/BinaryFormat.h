// The binary property-list format, version 00, as a reader and a writer share it.
//
// The file starts with "bplist00". Objects follow, each with a marker first: the kind in its upper four bits,
// in the lower ones a size or a count; 15 says that the count follows as an integer object. Containers refer
// to their members by number. A table of where each object starts comes next, then the trailer. All numbers
// are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brimsound::desktop::binary {

inline constexpr std::string_view magic = "bplist00";

/// Whole markers.
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
    /// Of 2 to the power of the lower bits bytes; up to four without a sign, else two's complement.
    IntegerKind = 0x1,
    DataKind = 0x4,
    AsciiKind = 0x5,
    /// Its count is of units of two bytes.
    Utf16Kind = 0x6,
    /// Of one byte more than the lower bits say.
    UidKind = 0x8,
    ArrayKind = 0xA,
    SetKind = 0xC,
    /// The references to all keys, then those to all values.
    DictionaryKind = 0xD,
};

/// The count of a marker whose count follows.
inline constexpr std::size_t countFollows = 0xF;

/// Five unused bytes and the sort version come first; the offsets here are from the trailer's start.
inline constexpr std::size_t trailerSize = 32;
inline constexpr std::size_t offsetSizeInTrailer = 6;
inline constexpr std::size_t referenceSizeInTrailer = 7;
inline constexpr std::size_t objectCountInTrailer = 8;
inline constexpr std::size_t rootInTrailer = 16;
inline constexpr std::size_t offsetTableInTrailer = 24;

} // namespace brimsound::desktop::binary
