#include "platform/desktop/Foundation/BinaryPropertyListReader.h"

#include "platform/Foundation/Utf16.h"
#include "platform/desktop/Foundation/BinaryFormat.h"
#include "platform/desktop/Foundation/PropertyListBudget.h"
#include "platform/desktop/Foundation/UnicodeText.h"

#include <bit>
#include <cstring>
#include <endian.h>
#include <string_view>

namespace brimsound::desktop {

using namespace binary;

namespace {

std::string_view characters(std::span<const std::byte> bytes)
{
    return { reinterpret_cast<const char*>(bytes.data()), bytes.size() };
}

template <typename Number> Number loaded(const std::byte* bytes)
{
    Number number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
}

std::uint64_t bigEndian(std::span<const std::byte> bytes)
{
    // Each of the usual sizes is loaded with one instruction.
    switch (bytes.size()) {
    case 1:
        return loaded<std::uint8_t>(bytes.data());
    case 2:
        return be16toh(loaded<std::uint16_t>(bytes.data()));
    case 4:
        return be32toh(loaded<std::uint32_t>(bytes.data()));
    case 8:
        return be64toh(loaded<std::uint64_t>(bytes.data()));
    default:
        break;
    }
    std::uint64_t value = 0;
    for (const auto byte : bytes)
        value = value << 8 | std::to_integer<std::uint64_t>(byte);
    return value;
}

bool isNumberSize(std::size_t size)
{
    return size >= 1 && size <= sizeof(std::uint64_t);
}

class Reader {
public:
    explicit Reader(std::span<const std::byte> file)
        : _file(file)
    {
    }

    std::optional<PropertyList> read()
    {
        PropertyList root;
        if (!readTrailer() || !readObject(_root, 0, root))
            return std::nullopt;
        return root;
    }

private:
    /// The bytes from the end of an object's marker to the end of all objects, and the object's count.
    struct Contents {
        std::span<const std::byte> bytes;
        std::uint64_t count;
    };

    bool readTrailer()
    {
        if (_file.size() < magic.size() + trailerSize)
            return false;
        const auto trailer = _file.last(trailerSize);
        const auto number = [&](std::size_t offset) { return bigEndian(trailer.subspan(offset, 8)); };
        _offsetSize = std::to_integer<std::size_t>(trailer[offsetSizeInTrailer]);
        _referenceSize = std::to_integer<std::size_t>(trailer[referenceSizeInTrailer]);
        _root = number(rootInTrailer);
        _count = number(objectCountInTrailer);
        const auto table = number(offsetTableInTrailer);
        const auto end = _file.size() - trailerSize;
        if (!isNumberSize(_offsetSize) || !isNumberSize(_referenceSize) || table > end
            || _count > (end - table) / _offsetSize)
            return false;
        _objects = _file.first(table);
        _offsets = _file.subspan(table, _count * _offsetSize);
        return true;
    }

    bool readObject(std::uint64_t number, std::size_t depth, PropertyList& value)
    {
        const auto object = objectAt(number);
        if (object.empty() || depth > deepestPropertyList)
            return false;
        const auto marker = std::to_integer<unsigned>(object.front());
        const auto bytes = object.subspan(1);
        switch (marker) {
        case NullMarker:
            value = PropertyList::NullObject {};
            return true;
        case FalseMarker:
        case TrueMarker:
            value = marker == TrueMarker;
            return true;
        case SingleMarker:
            if (bytes.size() < 4)
                return false;
            value = std::bit_cast<float>(static_cast<std::uint32_t>(bigEndian(bytes.first(4))));
            return true;
        case DoubleMarker:
        case DateMarker: {
            if (bytes.size() < 8)
                return false;
            const auto number64 = std::bit_cast<double>(bigEndian(bytes.first(8)));
            if (marker == DateMarker)
                value = PropertyList::Date { number64 };
            else
                value = number64;
            return true;
        }
        default:
            return readCounted(marker >> 4, { bytes, marker & 0xF }, depth, value);
        }
    }

    bool readCounted(unsigned kind, Contents contents, std::size_t depth, PropertyList& value)
    {
        if (kind == IntegerKind)
            return readInteger(contents, value);
        if (kind == UidKind)
            return readUid(contents, value);
        if (contents.count == countFollows && !readCount(contents))
            return false;
        switch (kind) {
        case DataKind:
            return readData(contents, value);
        case AsciiKind:
        case Utf16Kind: {
            std::string text;
            if (!readText(kind, contents, text))
                return false;
            value = std::move(text);
            return true;
        }
        case ArrayKind:
            value = PropertyList::Array();
            return readElements(contents, depth, *value.asArray());
        case SetKind:
            value = PropertyList::Set();
            return readElements(contents, depth, value.asSet()->elements);
        case DictionaryKind:
            return readEntries(contents, depth, value);
        default:
            return false;
        }
    }

    static bool readInteger(const Contents& contents, PropertyList& value)
    {
        const auto size = std::size_t { 1 } << contents.count;
        if (size > 16 || size > contents.bytes.size())
            return false;
        if (size == 16) {
            const auto high = static_cast<std::int64_t>(bigEndian(contents.bytes.first(8)));
            value = PropertyList::WideInteger { high, bigEndian(contents.bytes.subspan(8, 8)) };
        } else {
            value = static_cast<std::int64_t>(bigEndian(contents.bytes.first(size)));
        }
        return true;
    }

    static bool readUid(const Contents& contents, PropertyList& value)
    {
        const auto size = contents.count + 1;
        if (!isNumberSize(size) || size > contents.bytes.size())
            return false;
        value = PropertyList::Uid { bigEndian(contents.bytes.first(size)) };
        return true;
    }

    /// Reads a count that follows as an integer object of up to eight bytes.
    static bool readCount(Contents& contents)
    {
        if (contents.bytes.empty())
            return false;
        const auto marker = std::to_integer<unsigned>(contents.bytes.front());
        const auto size = std::size_t { 1 } << (marker & 0xF);
        if (marker >> 4 != IntegerKind || !isNumberSize(size) || size >= contents.bytes.size())
            return false;
        contents = { contents.bytes.subspan(1 + size), bigEndian(contents.bytes.subspan(1, size)) };
        return true;
    }

    bool readData(const Contents& contents, PropertyList& value)
    {
        if (contents.count > contents.bytes.size() || !_budget.takeData(contents.count))
            return false;
        const auto bytes = contents.bytes.first(contents.count);
        value = PropertyList::Data(bytes.begin(), bytes.end());
        return true;
    }

    bool readText(unsigned kind, const Contents& contents, std::string& text)
    {
        if (kind == Utf16Kind)
            return contents.count <= contents.bytes.size() / 2
                && readUtf16(contents.bytes.first(2 * contents.count), text);
        return contents.count <= contents.bytes.size()
            && readAscii(characters(contents.bytes.first(contents.count)), text);
    }

    bool readAscii(std::string_view bytes, std::string& text)
    {
        if (text::isAscii(bytes)) {
            if (!_budget.takeText(bytes.size()))
                return false;
            text = bytes;
            return true;
        }
        // A byte that is not ASCII can take three bytes as U+FFFD.
        if (!_budget.takeText(3 * bytes.size()))
            return false;
        text = textFrom(bytes);
        return true;
    }

    bool readUtf16(std::span<const std::byte> bytes, std::string& text)
    {
        const auto count = bytes.size() / 2;
        const auto unitAt
            = [&](std::size_t i) { return static_cast<char16_t>(bigEndian(bytes.subspan(2 * i, 2))); };
        std::size_t length = 0;
        text::forEachCharacter(
            count, unitAt, [&](char32_t character) { length += text::utf8LengthOf(character); });
        if (!_budget.takeText(length))
            return false;
        text.reserve(length);
        text::forEachCharacter(count, unitAt, [&](char32_t character) { text::appendUtf8(text, character); });
        return true;
    }

    bool readElements(const Contents& contents, std::size_t depth, PropertyList::Array& elements)
    {
        if (contents.count > contents.bytes.size() / _referenceSize || !_budget.takeValues(contents.count))
            return false;
        elements.reserve(contents.count);
        for (std::size_t i = 0; i < contents.count; ++i) {
            if (!readObject(reference(contents, i), depth + 1, elements.emplace_back()))
                return false;
        }
        return true;
    }

    bool readEntries(const Contents& contents, std::size_t depth, PropertyList& value)
    {
        if (contents.count > contents.bytes.size() / (2 * _referenceSize)
            || !_budget.takeEntries(contents.count))
            return false;
        std::vector<PropertyListDictionary::Entry> entries;
        entries.reserve(contents.count);
        for (std::size_t i = 0; i < contents.count; ++i) {
            auto& entry = entries.emplace_back();
            if (!readKey(reference(contents, i), entry.key)
                || !readObject(reference(contents, contents.count + i), depth + 1, entry.value))
                return false;
        }
        value = PropertyListDictionary(std::move(entries));
        return true;
    }

    bool readKey(std::uint64_t number, std::string& key)
    {
        const auto object = objectAt(number);
        if (object.empty())
            return false;
        const auto marker = std::to_integer<unsigned>(object.front());
        Contents contents { object.subspan(1), marker & 0xF };
        const auto kind = marker >> 4;
        return (kind == AsciiKind || kind == Utf16Kind)
            && (contents.count != countFollows || readCount(contents)) && readText(kind, contents, key);
    }

    /// The bytes from the object's marker to the end of all objects; empty when there is no such object.
    std::span<const std::byte> objectAt(std::uint64_t number) const
    {
        if (number >= _count)
            return {};
        const auto offset = bigEndian(_offsets.subspan(number * _offsetSize, _offsetSize));
        return offset >= magic.size() && offset < _objects.size() ? _objects.subspan(offset)
                                                                  : std::span<const std::byte>();
    }

    std::uint64_t reference(const Contents& contents, std::size_t i) const
    {
        return bigEndian(contents.bytes.subspan(i * _referenceSize, _referenceSize));
    }

    std::span<const std::byte> _file;
    /// The part of the file before the offset table.
    std::span<const std::byte> _objects;
    std::span<const std::byte> _offsets;
    std::size_t _offsetSize = 0;
    std::size_t _referenceSize = 0;
    std::uint64_t _count = 0;
    std::uint64_t _root = 0;
    PropertyListBudget _budget;
};

} // namespace

bool isBinaryPropertyList(std::span<const std::byte> bytes)
{
    return characters(bytes).starts_with(magic);
}

std::optional<PropertyList> readBinaryPropertyList(std::span<const std::byte> bytes)
{
    if (!isBinaryPropertyList(bytes))
        return std::nullopt;
    return Reader(bytes).read();
}

} // namespace brimsound::desktop
