#pragma once

#include "presets/Reading.h"

#include <optional>
#include <string>
#include <string_view>

namespace brimsound::presets {

struct Recognition {
    std::optional<Format> format;
    /// Why there is none: what the file is, as far as that is known.
    std::string reason;
    /// Where that shows: see Finding.
    std::string place {};
};

/// The format that the contents of a file show. Its name does not count.
Recognition recognize(std::string_view contents);

} // namespace brimsound::presets
