// Positions in a table.
#pragma once

#include <compare>
#include <cstddef>

namespace brimsound {

/// A row of a table, both counted from 0.
struct NSIndexPath {
    std::size_t section = 0;
    std::size_t row = 0;

    auto operator<=>(const NSIndexPath&) const = default; // NOLINT(modernize-use-nullptr): not a pointer
};

} // namespace brimsound
