#pragma once

#include "presets/Findings.h"
#include "presets/Target.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::presets {

/// A preset as a file has it.
struct ForeignPreset {
    /// UTF-8; empty when the file does not name it.
    std::string name;
    /// Without meaning when the findings have errors.
    Target target;
    Findings findings;
};

using ForeignPresets = std::vector<ForeignPreset>;

/// How to read files that leave a choice.
struct ReadingOptions {
    enum class Channel { Left, Right };
    /// The channel to take from a file in which the channels differ.
    Channel channel = Channel::Left;
    /// The device to take from a file that has settings for several.
    std::optional<std::string> device;
    /// Whether the ten bands of an XMMS or Audacious file are octaves from 31.25 Hz, not this equalizer's.
    bool bandsAreOctaves = false;
};

/// The largest number of filters, points or presets that a file may have.
constexpr std::size_t mostItems = 10000;

/// The result of a file that cannot be read at all: one preset that is refused for that reason.
ForeignPresets refusedFile(std::string place, std::string reason);

} // namespace brimsound::presets
