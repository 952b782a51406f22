#pragma once

#include <compare>
#include <cstddef>

namespace brimsound::toolkit {

/// A section of a table and a row in that section; both count from 0.
struct RowPath {
    std::size_t section = 0;
    std::size_t row = 0;

    auto operator<=>(const RowPath&) const = default; // NOLINT(modernize-use-nullptr): not a pointer
};

} // namespace brimsound::toolkit
