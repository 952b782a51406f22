#include "tests/support/BinaryPropertyList.h"

#include <cstdint>

namespace brimsound::tests {

namespace {

std::string bigEndian(std::uint64_t value, int size)
{
    std::string bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift);
    return bytes;
}

/// The start of an object: its kind, and a count as a four-byte integer.
std::string head(unsigned kind, std::size_t count)
{
    return std::string(1, static_cast<char>(kind << 4 | 0xf)) + "\x12" + bigEndian(count, 4);
}

std::string referenceTo(int place)
{
    return bigEndian(static_cast<std::uint64_t>(place), 2);
}

std::string fileOf(const std::string& start, const std::string& offsets)
{
    return start + offsets + std::string(6, '\0') + "\x04\x02" + bigEndian(offsets.size() / 4, 8)
        + bigEndian(0, 8) + bigEndian(start.size(), 8);
}

} // namespace

std::string binaryFile(const std::vector<std::string>& objects)
{
    std::string file = "bplist00";
    std::string offsets;
    for (const auto& object : objects) {
        offsets += bigEndian(file.size(), 4);
        file += object;
    }
    return fileOf(file, offsets);
}

std::string overlappingFile(const std::string& objects)
{
    const std::string file = "bplist00" + objects;
    std::string offsets;
    for (auto offset = file.size() - objects.size(); offset < file.size(); ++offset)
        offsets += bigEndian(offset, 4);
    return fileOf(file, offsets);
}

std::string arrayOf(std::initializer_list<int> references)
{
    auto object = head(0xa, references.size());
    for (const int reference : references)
        object += referenceTo(reference);
    return object;
}

std::string arrayOfCopies(std::size_t count, int reference)
{
    return head(0xa, count) + repeat(referenceTo(reference), count);
}

std::string dictionaryOf(int key, int value)
{
    return head(0xd, 1) + referenceTo(key) + referenceTo(value);
}

std::string dictionaryOf(const std::vector<int>& keys, const std::vector<int>& values)
{
    auto object = head(0xd, keys.size());
    for (const auto* places : { &keys, &values }) {
        for (const int place : *places)
            object += referenceTo(place);
    }
    return object;
}

std::string stringOf(std::string_view bytes)
{
    return head(0x5, bytes.size()) + std::string(bytes);
}

std::string repeat(std::string_view text, std::size_t times)
{
    std::string all;
    all.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

std::vector<std::string> collidingKeys()
{
    constexpr int pairs = 16;
    std::vector<std::string> keys;
    for (unsigned bits = 0; bits < 1u << pairs; ++bits) {
        std::string key;
        for (int pair = 0; pair < pairs; ++pair)
            key += (bits >> pair & 1u) != 0 ? "aB" : "b!";
        keys.push_back(std::move(key));
    }
    return keys;
}

} // namespace brimsound::tests
