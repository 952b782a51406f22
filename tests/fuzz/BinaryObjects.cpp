#include "tests/fuzz/BinaryObjects.h"

#include <algorithm>

namespace brimsound::tests {

namespace {

constexpr std::size_t magicSize = 8;
constexpr std::size_t trailerSize = 32;
constexpr std::size_t offsetSizeInFile = 4;

std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = number << 8 | static_cast<unsigned char>(byte);
    return number;
}

std::string bigEndianOf(std::uint64_t number, std::size_t size)
{
    std::string bytes(size, '\0');
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte, number >>= 8)
        *byte = static_cast<char>(number);
    return bytes;
}

} // namespace

std::optional<BinaryObjects> binaryObjectsOf(std::string_view file)
{
    if (file.size() < magicSize + trailerSize)
        return std::nullopt;
    const auto trailer = file.substr(file.size() - trailerSize);
    const auto offsetSize = bigEndian(trailer.substr(6, 1));
    const auto count = bigEndian(trailer.substr(8, 8));
    const auto table = bigEndian(trailer.substr(24, 8));
    const auto end = file.size() - trailerSize;
    if (offsetSize < 1 || offsetSize > 8 || table > end || count > (end - table) / offsetSize)
        return std::nullopt;

    std::vector<std::uint64_t> offsets;
    for (std::size_t i = 0; i < count; ++i)
        offsets.push_back(bigEndian(file.substr(table + i * offsetSize, offsetSize)));
    auto sorted = offsets;
    sorted.push_back(table);
    std::sort(sorted.begin(), sorted.end());

    BinaryObjects parts { {}, static_cast<std::uint8_t>(trailer[7]), bigEndian(trailer.substr(16, 8)) };
    for (const auto offset : offsets) {
        const auto next = std::upper_bound(sorted.begin(), sorted.end(), offset);
        if (next == sorted.end() || *next > file.size())
            return std::nullopt;
        parts.objects.emplace_back(file.substr(offset, *next - offset));
    }
    return parts;
}

std::string fileOf(const BinaryObjects& parts)
{
    std::string file = "bplist00";
    std::string table;
    for (const auto& object : parts.objects) {
        table += bigEndianOf(file.size(), offsetSizeInFile);
        file += object;
    }
    const auto tableOffset = file.size();
    return file + table + std::string(6, '\0') + static_cast<char>(offsetSizeInFile)
        + static_cast<char>(parts.referenceSize) + bigEndianOf(parts.objects.size(), 8)
        + bigEndianOf(parts.root, 8) + bigEndianOf(tableOffset, 8);
}

} // namespace brimsound::tests
