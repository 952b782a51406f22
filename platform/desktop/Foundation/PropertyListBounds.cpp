#include "platform/desktop/Foundation/PropertyListBounds.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

namespace {

// What values take from the heap in bytes, as measured, while they are read and the parser's nodes still
// stand beside them, or while they are written.
/// Any value by itself.
constexpr std::size_t valueSize = 144;
/// An array or dictionary besides.
constexpr std::size_t containerSize = 128;
/// A string or data, besides its bytes.
constexpr std::size_t bytesSize = 64;
/// A key in a dictionary, besides its bytes: two such, as the dictionary keeps an index.
constexpr std::size_t keySize = 2 * (valueSize + bytesSize);

/// How much the values of a file of that length may take, `times` being how often its length. What is left of
/// twenty times is for its own bytes and, in markup, for those of its texts. Writing more values than the
/// second number lets in would be slow.
std::size_t largestSize(std::size_t length, std::size_t times)
{
    constexpr std::size_t mebibyte = std::size_t { 1 } << 20;
    return std::min(16 * mebibyte + times * length, 32 * mebibyte);
}
constexpr std::size_t timesOfObjects = 16;
constexpr std::size_t timesOfMarkup = 8;

/// The objects of a binary property list. An object may be referred to many times; parsed, each reference
/// becomes a copy.
class ObjectGraph {
public:
    explicit ObjectGraph(std::span<const std::byte> contents)
        : _contents(contents)
        , _largestSize(largestSize(contents.size(), timesOfObjects))
    {
    }

    bool isWithinBounds()
    {
        constexpr std::size_t trailerSize = 32;
        if (_contents.size() < trailerSize)
            return false;
        const auto trailer = _contents.size() - trailerSize;
        _offsetSize = std::to_integer<std::size_t>(_contents[trailer + 6]);
        _referenceSize = std::to_integer<std::size_t>(_contents[trailer + 7]);
        const auto count = number(trailer + 8, 8);
        const auto root = number(trailer + 16, 8);
        _offsetTable = number(trailer + 24, 8).value_or(0);
        // An object takes a byte at least, and so does its place in the table.
        if (!count || !root || *count > _contents.size() / 2)
            return false;
        _measures.resize(*count);
        return measure(*root, 0).has_value();
    }

private:
    struct Measure {
        std::size_t height;
        std::size_t size;
    };
    /// What the first bytes of an object say: its kind, and its count of bytes or references, which start at
    /// `contents`.
    struct Head {
        unsigned kind;
        std::size_t count;
        std::size_t contents;
    };

    std::optional<std::size_t> number(std::size_t position, std::size_t size) const
    {
        if (size == 0 || size > 8 || position > _contents.size() || size > _contents.size() - position)
            return std::nullopt;
        std::size_t value = 0;
        for (auto byte : _contents.subspan(position, size))
            value = value << 8 | std::to_integer<std::size_t>(byte);
        return value;
    }

    std::optional<Head> head(std::size_t index) const
    {
        const auto offset = number(_offsetTable + index * _offsetSize, _offsetSize);
        const auto marker = offset ? number(*offset, 1) : std::nullopt;
        if (!marker)
            return std::nullopt;
        Head head { static_cast<unsigned>(*marker >> 4), *marker & 0xf, *offset + 1 };
        if (head.kind < 4 || head.count < 0xf)
            return head;
        // The count did not fit and follows as an integer object.
        const auto integer = number(head.contents, 1);
        if (!integer || *integer >> 4 != 1 || (*integer & 0xf) > 3)
            return std::nullopt;
        const auto size = std::size_t { 1 } << (*integer & 0xf);
        const auto count = number(head.contents + 1, size);
        if (!count)
            return std::nullopt;
        return Head { head.kind, *count, head.contents + 1 + size };
    }

    /// Nothing when the object is out of bounds. One that contains itself is deeper than any bound.
    std::optional<Measure> measure(std::size_t index, std::size_t depth)
    {
        if (index >= _measures.size() || depth > deepestPropertyList)
            return std::nullopt;
        if (!_measures[index])
            _measures[index] = measureContents(index, depth);
        const auto measure = _measures[index];
        return measure && depth + measure->height <= deepestPropertyList ? measure : std::nullopt;
    }

    std::optional<Measure> measureContents(std::size_t index, std::size_t depth)
    {
        const auto object = head(index);
        if (!object || object->count > _contents.size())
            return std::nullopt;

        const bool isDictionary = object->kind == 0xd;
        const bool isContainer = object->kind >= 0xa;
        Measure all { 0, valueSize + (isContainer ? containerSize : sizeOfBytes(*object)) };
        // A dictionary's keys are followed by as many values.
        const auto references = isContainer ? object->count * (isDictionary ? 2 : 1) : 0;
        for (std::size_t i = 0; i < references; ++i) {
            const auto reference = number(object->contents + i * _referenceSize, _referenceSize);
            const auto member = reference ? measure(*reference, depth + 1) : std::nullopt;
            if (!member)
                return std::nullopt;
            all.height = std::max(all.height, member->height + 1);
            const bool isKey = isDictionary && i < object->count;
            if (isKey && holdsNul(*reference))
                return std::nullopt;
            all.size += (isKey ? 2 : 1) * member->size;
            if (all.size > _largestSize)
                return std::nullopt;
        }
        return all;
    }

    /// Whether the object is a string with a NUL in it, which as a key would end the process.
    bool holdsNul(std::size_t index) const
    {
        const auto object = head(index);
        const std::size_t unitSize = object && object->kind == 0x6 ? 2 : 1;
        for (std::size_t i = 0; object && i < object->count; ++i) {
            if (number(object->contents + i * unitSize, unitSize) == 0)
                return true;
        }
        return false;
    }

    /// Counted twice, in the parser and in the value: data as it is, text in UTF-8, in which a unit takes
    /// three bytes at most, and so does the character in place of a byte that is no text.
    static std::size_t sizeOfBytes(const Head& object)
    {
        switch (object.kind) {
        case 0x4:
            return bytesSize + 2 * object.count;
        case 0x5:
            return bytesSize + 4 * object.count;
        case 0x6:
            return bytesSize + 6 * object.count;
        default:
            return 0;
        }
    }

    std::span<const std::byte> _contents;
    std::size_t _largestSize;
    std::size_t _offsetSize = 0;
    std::size_t _referenceSize = 0;
    std::size_t _offsetTable = 0;
    // Of the objects that have been measured.
    std::vector<std::optional<Measure>> _measures;
};

/// Whether what follows a tag's name closes it at once. In doubt it does not: a tag with attributes counts as
/// open.
bool isSelfClosing(std::string_view afterName)
{
    afterName.remove_prefix(std::min(afterName.size(), afterName.find_first_not_of(" \t\r\n")));
    return afterName.starts_with("/>");
}

/// The parser moves the rest of a text for each entity in it. This many bytes are moved in less than a
/// second.
constexpr std::size_t mostBytesMoved = std::size_t { 1 } << 34;

/// What the value takes that the tag starts. In doubt, a string.
std::size_t sizeOfTag(std::string_view tag)
{
    if (tag.starts_with('/'))
        return 0;
    if (tag.starts_with("key"))
        return keySize;
    const bool isContainer = tag.starts_with("array") || tag.starts_with("dict");
    return valueSize + (isContainer ? containerSize : bytesSize);
}

bool isMarkupWithinBounds(std::string_view text)
{
    const auto largest = largestSize(text.size(), timesOfMarkup);
    std::size_t depth = 0;
    std::size_t size = 0;
    std::size_t bytesMoved = 0;
    for (auto tag = text.find('<'); tag != std::string_view::npos;) {
        const auto next = text.find('<', tag + 1);
        const auto rest = text.substr(tag + 1, next - tag - 1);
        tag = next;

        const std::size_t nameLength = rest.starts_with("array") ? 5 : rest.starts_with("dict") ? 4 : 0;
        if (nameLength > 0)
            depth += isSelfClosing(rest.substr(nameLength)) ? 0 : 1;
        else if (depth > 0 && (rest.starts_with("/array") || rest.starts_with("/dict")))
            --depth;
        size += sizeOfTag(rest);
        bytesMoved += rest.size() * static_cast<std::size_t>(std::ranges::count(rest, '&'));
        if (depth > deepestPropertyList || size > largest || bytesMoved > mostBytesMoved)
            return false;
    }
    return true;
}

} // namespace

bool isWithinBounds(std::span<const std::byte> contents)
{
    if (contents.size() > longestPropertyListFile)
        return false;
    const std::string_view text(reinterpret_cast<const char*>(contents.data()), contents.size());
    return text.starts_with("bplist") ? ObjectGraph(contents).isWithinBounds() : isMarkupWithinBounds(text);
}

} // namespace brimsound::desktop
