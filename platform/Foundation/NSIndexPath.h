#pragma once

#include <compare>
#include <cstddef>

namespace brimsound {

/// The position of a row in a table; section and row are counted from 0.
struct NSIndexPath {
    std::size_t section = 0;
    std::size_t row = 0;

    auto operator<=>(const NSIndexPath&) const = default; // NOLINT(modernize-use-nullptr): not a pointer
};

} // namespace brimsound
