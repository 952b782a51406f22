// Splitting binary property lists into their objects, for a fuzzer that changes the objects and keeps the
// rest of the file valid.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::tests {

struct BinaryObjects {
    std::vector<std::string> objects;
    std::uint8_t referenceSize = 1;
    std::uint64_t root = 0;
};

/// Nothing for bytes with an invalid trailer or table. Overlapping objects become copies.
std::optional<BinaryObjects> binaryObjectsOf(std::string_view file);

/// A file of those objects with a matching table and trailer.
std::string fileOf(const BinaryObjects&);

} // namespace brimsound::tests
