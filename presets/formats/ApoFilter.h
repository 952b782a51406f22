// One filter of Equalizer APO, as AutoEq and REW write it too.
#pragma once

#include "presets/Filter.h"

#include <optional>
#include <string>
#include <string_view>

namespace brimsound::presets {

struct ApoFilter {
    enum class Use {
        /// `filter` is on.
        On,
        /// Switched off, or of a type without effect on the level.
        None,
        /// Skipped; `reason` says why.
        Skipped,
        /// Its numbers have no meaning: the whole preset cannot be trusted.
        Refused,
    };
    Use use = Use::None;
    Filter filter;
    std::string reason;
};

/// Reads what follows the colon of a "Filter:" line.
///
/// A comma is a decimal separator. A frequency with exactly three digits after its separator is meant in
/// thousands: "8.000 Hz" is 8 kHz.
ApoFilter readApoFilter(std::string_view parameters);

/// A number of a "Preamp:" line in dB; nothing when there is none.
std::optional<double> readApoPreamp(std::string_view parameters);

} // namespace brimsound::presets
