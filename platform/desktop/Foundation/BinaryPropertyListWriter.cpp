#include "platform/desktop/Foundation/BinaryPropertyListWriter.h"

#include "platform/Foundation/Utf16.h"
#include "platform/desktop/Foundation/BinaryFormat.h"
#include "platform/desktop/Foundation/PropertyListBudget.h"
#include "platform/desktop/Foundation/UniqueObjects.h"

#include <algorithm>
#include <cstring>
#include <endian.h>
#include <vector>

namespace brimsound::desktop {

using namespace binary;

namespace {

/// The numbered objects of a property list, and the references of its containers.
class ObjectGraph {
public:
    ObjectGraph()
    {
        constexpr std::size_t usual = 512;
        objects.reserve(usual);
        references.reserve(usual);
    }

    /// Numbers the value and everything in it. Returns false when the value cannot be written.
    bool add(const PropertyList& value, std::uint32_t& number, std::size_t depth = 0)
    {
        if (depth > deepestPropertyList)
            return false;
        if (const auto scalar = scalarObject(value))
            return addScalar(*scalar, number);
        if (const auto* array = value.asArray())
            return addElements(ObjectType::Array, *array, number, depth);
        if (const auto* dictionary = value.asDictionary())
            return addEntries(*dictionary, number, depth);
        if (const auto* set = value.asSet())
            return addElements(ObjectType::Set, set->elements, number, depth);
        return false;
    }

    std::vector<Object> objects;
    std::vector<std::uint32_t> references;

private:
    bool addScalar(const Object& scalar, std::uint32_t& number)
    {
        const auto length = scalar.bytes.size();
        if ((scalar.type == ObjectType::Text && !_budget.takeText(length))
            || (scalar.type == ObjectType::Data && !_budget.takeData(length)))
            return false;
        const auto place = _unique.place(scalar, objects);
        number = place.number;
        return !place.isNew || scalar.type != ObjectType::Text || measureText(objects.back());
    }

    std::uint32_t addContainer(ObjectType type, std::size_t count)
    {
        const auto number = static_cast<std::uint32_t>(objects.size());
        objects.push_back({ .type = type, .number = references.size(), .more = count });
        references.resize(references.size() + count);
        return number;
    }

    bool addMember(const PropertyList& value, std::size_t reference, std::size_t depth)
    {
        std::uint32_t number = 0;
        if (!add(value, number, depth))
            return false;
        references[reference] = number;
        return true;
    }

    bool addKey(const std::string& key, std::size_t reference)
    {
        return addScalar({ .type = ObjectType::Text, .bytes = key }, references[reference]);
    }

    bool addElements(
        ObjectType type, const PropertyList::Array& elements, std::uint32_t& number, std::size_t depth)
    {
        if (!_budget.takeValues(elements.size()))
            return false;
        auto next = references.size();
        number = addContainer(type, elements.size());
        return std::all_of(elements.begin(), elements.end(),
            [&](const auto& element) { return addMember(element, next++, depth + 1); });
    }

    bool addEntries(const PropertyList::Dictionary& dictionary, std::uint32_t& number, std::size_t depth)
    {
        if (!_budget.takeEntries(dictionary.size()))
            return false;
        auto next = references.size();
        number = addContainer(ObjectType::Dictionary, 2 * dictionary.size());
        return std::all_of(dictionary.begin(), dictionary.end(), [&](const auto& entry) {
            return addKey(entry.key, next++);
        }) && std::all_of(dictionary.begin(), dictionary.end(), [&](const auto& entry) {
            return addMember(entry.value, next++, depth + 1);
        });
    }

    UniqueObjects _unique;
    PropertyListBudget _budget;
};

/// Writes into a buffer that is large enough.
class Output {
public:
    explicit Output(std::byte* start)
        : _start(start)
        , _next(start)
    {
    }

    std::size_t length() const { return static_cast<std::size_t>(_next - _start); }

    /// Writes a number in 1, 2, 4 or 8 bytes.
    void append(std::uint64_t number, std::size_t size)
    {
        // Each size is stored with one instruction.
        switch (size) {
        case 1:
            store(static_cast<std::uint8_t>(number));
            return;
        case 2:
            store(htobe16(static_cast<std::uint16_t>(number)));
            return;
        case 4:
            store(htobe32(static_cast<std::uint32_t>(number)));
            return;
        default:
            store(htobe64(number));
        }
    }

    void append(std::string_view bytes)
    {
        if (!bytes.empty())
            std::memcpy(_next, bytes.data(), bytes.size());
        _next += bytes.size();
    }

    void appendMarker(Kind kind, std::uint64_t low) { append(std::uint64_t { kind } << 4 | low, 1); }

    void appendHead(Kind kind, std::uint64_t count)
    {
        if (count < countFollows) {
            appendMarker(kind, count);
            return;
        }
        appendMarker(kind, countFollows);
        appendInteger(count, numberSize(count));
    }

    void appendInteger(std::uint64_t number, std::size_t size)
    {
        std::uint64_t logarithm = 0;
        while (std::size_t { 1 } << logarithm < size)
            ++logarithm;
        appendMarker(IntegerKind, logarithm);
        append(number, size);
    }

private:
    template <typename Number> void store(Number number)
    {
        std::memcpy(_next, &number, sizeof number);
        _next += sizeof number;
    }

    std::byte* _start;
    std::byte* _next;
};

void appendText(Output& output, const Object& text)
{
    output.appendHead(text.isAscii ? AsciiKind : Utf16Kind, text.units);
    if (text.isAscii)
        output.append(text.bytes);
    else
        text::forEachUnit(text.bytes, [&](char16_t unit) { output.append(unit, 2); });
}

void appendInteger(Output& output, const Object& integer)
{
    const auto size = integerSize(integer);
    if (size <= 8) {
        output.appendInteger(integer.number, size);
        return;
    }
    output.appendMarker(IntegerKind, 4);
    output.append(integer.more, 8);
    output.append(integer.number, 8);
}

void appendObject(Output& output, const Object& object, const ObjectGraph& graph, std::size_t referenceSize)
{
    switch (object.type) {
    case ObjectType::Null:
        output.append(NullMarker, 1);
        return;
    case ObjectType::Boolean:
        output.append(object.number != 0 ? TrueMarker : FalseMarker, 1);
        return;
    case ObjectType::Integer:
        appendInteger(output, object);
        return;
    case ObjectType::Single:
        output.append(SingleMarker, 1);
        output.append(object.number, 4);
        return;
    case ObjectType::Double:
    case ObjectType::Date:
        output.append(object.type == ObjectType::Date ? DateMarker : DoubleMarker, 1);
        output.append(object.number, 8);
        return;
    case ObjectType::Uid: {
        const auto size = numberSize(object.number);
        output.appendMarker(UidKind, size - 1);
        output.append(object.number, size);
        return;
    }
    case ObjectType::Data:
        output.appendHead(DataKind, object.bytes.size());
        output.append(object.bytes);
        return;
    case ObjectType::Text:
        appendText(output, object);
        return;
    case ObjectType::Array:
        output.appendHead(ArrayKind, countOf(object));
        break;
    case ObjectType::Set:
        output.appendHead(SetKind, countOf(object));
        break;
    case ObjectType::Dictionary:
        output.appendHead(DictionaryKind, countOf(object));
        break;
    }
    for (std::size_t i = 0; i < object.more; ++i)
        output.append(graph.references[object.number + i], referenceSize);
}

} // namespace

std::optional<PropertyList::Data> writeBinaryPropertyList(const PropertyList& value)
{
    ObjectGraph graph;
    std::uint32_t root = 0;
    if (!graph.add(value, root))
        return std::nullopt;

    const auto count = graph.objects.size();
    const auto referenceSize = numberSize(count);
    std::size_t offsetTable = magic.size();
    for (const auto& object : graph.objects)
        offsetTable += sizeOf(object, referenceSize);
    const auto offsetSize = numberSize(offsetTable);

    PropertyList::Data file(offsetTable + count * offsetSize + trailerSize);
    Output output(file.data());
    Output offsets(file.data() + offsetTable);
    output.append(magic);
    for (const auto& object : graph.objects) {
        offsets.append(output.length(), offsetSize);
        appendObject(output, object, graph, referenceSize);
    }
    Output trailer(file.data() + file.size() - trailerSize + offsetSizeInTrailer);
    trailer.append(offsetSize, 1);
    trailer.append(referenceSize, 1);
    trailer.append(count, 8);
    trailer.append(root, 8);
    trailer.append(offsetTable, 8);
    return file;
}

} // namespace brimsound::desktop
