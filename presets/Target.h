// What a preset of another program asks for.
#pragma once

#include "desktop/engine/audio/Bands.h"
#include "presets/Curve.h"
#include "presets/Filter.h"

#include <variant>
#include <vector>

namespace brimsound::presets {

/// The sliders of a program with these ten bands.
struct Positions {
    /// In dB; may be beyond the sliders' limits.
    audio::BandGains gains {};

    bool operator==(const Positions&) const = default;
};

/// A frequency response: that of filters and curves one after the other.
struct Response {
    std::vector<Filter> filters;
    std::vector<Curve> curves;
    /// A curve is often shifted so that it nowhere amplifies. Then only its shape is meant.
    bool levelIsKnown = true;

    bool operator==(const Response&) const = default;
};

using Target = std::variant<Positions, Response>;

} // namespace brimsound::presets
