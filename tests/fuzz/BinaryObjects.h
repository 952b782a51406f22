// Binary property lists taken apart into their objects, for a fuzzer that changes those and keeps the rest
// right.
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

/// Nothing for bytes whose trailer or table is wrong. Objects that overlap come out as copies.
std::optional<BinaryObjects> binaryObjectsOf(std::string_view file);

/// A file of those objects with a table and a trailer that fit.
std::string fileOf(const BinaryObjects&);

} // namespace brimsound::tests
