#include "platform/desktop/Foundation/BinaryObject.h"

#include "platform/Foundation/Utf16.h"
#include "platform/desktop/Foundation/BinaryFormat.h"

#include <bit>

namespace brimsound::desktop::binary {

namespace {

std::string_view characters(const PropertyList::Data& data)
{
    return { reinterpret_cast<const char*>(data.data()), data.size() };
}

std::size_t headSize(std::uint64_t count)
{
    return count < countFollows ? 1 : 2 + numberSize(count);
}

} // namespace

std::optional<Object> scalarObject(const PropertyList& value)
{
    if (const auto* real = value.asReal()) {
        if (value.isSingleReal())
            return Object { .type = ObjectType::Single,
                .number = std::bit_cast<std::uint32_t>(static_cast<float>(*real)) };
        return Object { .type = ObjectType::Double, .number = std::bit_cast<std::uint64_t>(*real) };
    }
    if (const auto* string = value.asString())
        return Object { .type = ObjectType::Text, .bytes = *string };
    if (const auto* boolean = value.asBoolean())
        return Object { .type = ObjectType::Boolean, .number = *boolean ? 1u : 0u };
    if (const auto* integer = value.asInteger())
        return Object { .type = ObjectType::Integer,
            .number = static_cast<std::uint64_t>(*integer),
            .more = *integer < 0 ? ~std::uint64_t { 0 } : 0 };
    if (const auto* wide = value.asWideInteger())
        return Object {
            .type = ObjectType::Integer, .number = wide->low, .more = static_cast<std::uint64_t>(wide->high)
        };
    if (const auto* data = value.asData())
        return Object { .type = ObjectType::Data, .bytes = characters(*data) };
    if (const auto* date = value.asDate())
        return Object { .type = ObjectType::Date,
            .number = std::bit_cast<std::uint64_t>(date->secondsSinceReferenceDate) };
    if (const auto* uid = value.asUid())
        return Object { .type = ObjectType::Uid, .number = uid->value };
    if (value.asNullObject())
        return Object { .type = ObjectType::Null };
    return std::nullopt;
}

bool measureText(Object& text)
{
    text.isAscii = text::isAscii(text.bytes);
    text.units = static_cast<std::uint32_t>(text.bytes.size());
    if (text.isAscii)
        return true;
    text.units = 0;
    return text::forEachUnit(text.bytes, [&](char16_t) { ++text.units; });
}

std::size_t numberSize(std::uint64_t number)
{
    return number <= 0xFF ? 1 : number <= 0xFFFF ? 2 : number <= 0xFFFFFFFF ? 4 : 8;
}

std::size_t integerSize(const Object& integer)
{
    constexpr std::uint64_t sign = std::uint64_t { 1 } << 63;
    // Shorter integers are unsigned.
    if (integer.more == 0)
        return integer.number < sign ? numberSize(integer.number) : 16;
    return ~integer.more == 0 && integer.number >= sign ? 8 : 16;
}

std::uint64_t countOf(const Object& object)
{
    switch (object.type) {
    case ObjectType::Data:
        return object.bytes.size();
    case ObjectType::Text:
        return object.units;
    case ObjectType::Dictionary:
        return object.more / 2;
    default:
        return object.more;
    }
}

std::size_t sizeOf(const Object& object, std::size_t referenceSize)
{
    switch (object.type) {
    case ObjectType::Null:
    case ObjectType::Boolean:
        return 1;
    case ObjectType::Integer:
        return 1 + integerSize(object);
    case ObjectType::Uid:
        return 1 + numberSize(object.number);
    case ObjectType::Single:
        return 5;
    case ObjectType::Double:
    case ObjectType::Date:
        return 9;
    case ObjectType::Data:
        return headSize(object.bytes.size()) + object.bytes.size();
    case ObjectType::Text:
        return headSize(object.units) + object.units * std::size_t { object.isAscii ? 1u : 2u };
    case ObjectType::Array:
    case ObjectType::Set:
    case ObjectType::Dictionary:
        break;
    }
    return headSize(countOf(object)) + object.more * referenceSize;
}

} // namespace brimsound::desktop::binary
