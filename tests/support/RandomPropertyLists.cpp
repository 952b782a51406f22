#include "tests/support/RandomPropertyLists.h"

#include <algorithm>
#include <array>
#include <bit>
#include <set>
#include <vector>

namespace brimsound::tests {

namespace {

constexpr int deepest = 6;
/// The maximum number of values in an object of a file, including everything that it refers to.
constexpr std::size_t mostValues = 2000;

std::string bigEndian(std::uint64_t number, std::size_t size)
{
    std::string bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8)
        *byte = static_cast<char>(number);
    return bytes;
}

const std::array<std::string, 12> texts {
    "",
    "a",
    "Rock",
    "PEAKING_EQ_VALUES",
    "fifteen letters",
    "a text of more than fifteen letters, as most allocate",
    "B\u00e4sse",
    "\u4f4e\u97f3",
    "\U0001F3A7",
    std::string("a\0b", 3),
    "\xED\xA0\xBD",
    "x\xED\xBE\xA7y",
};

} // namespace

/// An object, and the number of its values.
struct RandomPropertyLists::FileObject {
    std::string bytes;
    std::size_t values = 1;
    bool isText = false;
};

RandomPropertyLists::RandomPropertyLists(std::uint32_t seed)
    : _random(seed)
{
}

std::size_t RandomPropertyLists::upTo(std::size_t most)
{
    // The standard library's distributions differ between implementations.
    return _random() % (most + 1);
}

std::uint64_t RandomPropertyLists::bits()
{
    const std::uint64_t all = std::uint64_t { _random() } << 32 | _random();
    return all >> upTo(63);
}

PropertyList RandomPropertyLists::value()
{
    return oneIn(4) ? scalar() : container(0);
}

PropertyList RandomPropertyLists::container(int depth)
{
    // Includes counts at which the size in the file changes.
    const std::size_t count = oneIn(20) ? 13 + upTo(5) : oneIn(200) ? 250 + upTo(10) : upTo(6);
    const auto element = [&] { return depth < deepest && oneIn(4) ? container(depth + 1) : scalar(); };
    if (oneIn(2)) {
        PropertyList::Dictionary dictionary;
        for (std::size_t i = 0; i < count; ++i)
            dictionary.set(key(), element());
        return dictionary;
    }
    PropertyList::Array elements;
    for (std::size_t i = 0; i < count; ++i)
        elements.push_back(element());
    if (oneIn(8))
        return PropertyList::Set { std::move(elements) };
    return elements;
}

std::string RandomPropertyLists::text()
{
    if (oneIn(4)) {
        std::string repeated;
        repeated.append(upTo(300), static_cast<char>('a' + upTo(20)));
        return repeated;
    }
    return texts[upTo(texts.size() - 1)];
}

std::string RandomPropertyLists::key()
{
    return oneIn(2) ? text() : "key " + std::to_string(upTo(1000));
}

PropertyList RandomPropertyLists::scalar()
{
    constexpr auto middle = static_cast<std::int64_t>(std::uint64_t { 1 } << 40);
    switch (upTo(13)) {
    case 0:
        return oneIn(2);
    case 1:
        return static_cast<std::int64_t>(bits());
    case 2:
        return -static_cast<std::int64_t>(bits() >> 1) - 1;
    case 3:
        return bits();
    case 4:
        return PropertyList::WideInteger { static_cast<std::int64_t>(bits()), bits() };
    case 5:
        return static_cast<float>(static_cast<int>(upTo(96)) - 48) / 4;
    case 6:
        return std::bit_cast<float>(static_cast<std::uint32_t>(bits()));
    case 7:
        return std::bit_cast<double>(bits());
    case 8:
        return static_cast<double>(bits());
    case 9:
        return PropertyList::Date { static_cast<double>(
            static_cast<std::int64_t>(bits() >> 34) - 500'000'000) };
    case 10:
        return PropertyList::Data(upTo(40), static_cast<std::byte>(upTo(255)));
    case 11:
        if (oneIn(4))
            return PropertyList::NullObject {};
        return PropertyList::Uid { oneIn(4) ? bits() : bits() >> 32 };
    case 12:
        return PropertyList::Date { static_cast<double>(static_cast<std::int64_t>(bits()) % middle) / 1024 };
    default:
        return text();
    }
}

std::string RandomPropertyLists::head(unsigned kind, std::size_t count)
{
    const auto marker
        = [kind](std::size_t low) { return std::string(1, static_cast<char>(kind << 4 | low)); };
    if (count < 15 && !oneIn(4))
        return marker(count);
    const auto least = count < 0x100 ? 0u : 1u;
    const auto logarithm = least + upTo(3 - least);
    return marker(15) + static_cast<char>(0x10 | logarithm)
        + bigEndian(count, std::size_t { 1 } << logarithm);
}

std::string RandomPropertyLists::fileText()
{
    if (oneIn(2)) {
        const auto count = upTo(40);
        return head(0x5, count) + std::string(count, static_cast<char>('A' + upTo(20)));
    }
    const auto count = upTo(20);
    auto object = head(0x6, count);
    for (std::size_t i = 0; i < count; ++i)
        object += bigEndian(oneIn(8) ? 0xD800 + upTo(0x7FF) : oneIn(2) ? upTo(0x7F) : upTo(0xFFFF), 2);
    return object;
}

std::string RandomPropertyLists::fileScalar()
{
    switch (upTo(7)) {
    case 0:
        return { std::string(1, oneIn(2) ? '\x08' : '\x09') };
    case 1:
    case 2: {
        const auto logarithm = upTo(4);
        const auto size = std::size_t { 1 } << logarithm;
        auto number = bigEndian(bits(), size);
        if (size == 16 && oneIn(2))
            number.replace(0, 8, bigEndian(bits(), 8));
        return static_cast<char>(0x10 | logarithm) + number;
    }
    case 3:
        return "\x22" + bigEndian(bits(), 4);
    case 4:
        return "\x23" + bigEndian(bits(), 8);
    case 5:
        return "\x33" + bigEndian(std::bit_cast<std::uint64_t>(static_cast<double>(upTo(900'000'000))), 8);
    case 6: {
        const auto count = upTo(30);
        return head(0x4, count) + std::string(count, static_cast<char>(upTo(255)));
    }
    default: {
        const auto size = 1 + upTo(7);
        return static_cast<char>(0x80 | (size - 1)) + bigEndian(bits(), size);
    }
    }
}

RandomPropertyLists::FileObject RandomPropertyLists::fileObject(
    std::size_t place, const std::vector<FileObject>& later)
{
    // `later` holds the objects after this one, the last one first.
    const auto referenceTo
        = [&](std::size_t i) { return bigEndian(place + later.size() - i, _referenceSize); };
    const bool isDictionary = oneIn(2);
    if (later.empty() || oneIn(3)) {
        if (oneIn(3))
            return { fileText(), 1, true };
        return { fileScalar() };
    }
    std::set<std::string> names;
    std::string keys;
    std::string values;
    std::size_t count = 0;
    std::size_t total = 1;
    for (auto tries = upTo(20); tries > 0; --tries) {
        const auto element = upTo(later.size() - 1);
        const auto name = upTo(later.size() - 1);
        // Programs disagree about the value of a repeated key.
        if (total + later[element].values > mostValues
            || (isDictionary && (!later[name].isText || !names.insert(later[name].bytes).second)))
            continue;
        keys += referenceTo(name);
        values += referenceTo(element);
        total += later[element].values;
        ++count;
    }
    return isDictionary ? FileObject { head(0xD, count) + keys + values, total }
                        : FileObject { head(oneIn(10) ? 0xC : 0xA, count) + values, total };
}

std::string RandomPropertyLists::file()
{
    const auto count = 1 + upTo(oneIn(10) ? 300 : 40);
    _referenceSize = (count <= 0x100 ? 1 : 2) + upTo(3);
    std::vector<FileObject> objects;
    for (std::size_t place = count; place-- > 0;)
        objects.push_back(fileObject(place, objects));
    std::reverse(objects.begin(), objects.end());

    const auto offsetSize = 4 + upTo(4);
    std::string bytes = "bplist00";
    std::string offsets;
    for (const auto& object : objects) {
        offsets += bigEndian(bytes.size(), offsetSize);
        bytes += object.bytes;
    }
    const auto offsetTable = bytes.size();
    return bytes + offsets + std::string(6, '\0') + static_cast<char>(offsetSize)
        + static_cast<char>(_referenceSize) + bigEndian(count, 8) + bigEndian(0, 8)
        + bigEndian(offsetTable, 8);
}

} // namespace brimsound::tests
