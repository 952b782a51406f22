// The options of brimsound-render.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace brimsound::render {

/// Invalid arguments; `what` is the line to print.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Options {
    /// Whether to print the names of the presets, and do nothing else.
    bool listPresets = false;
    std::filesystem::path in;
    std::filesystem::path out;
    /// Either a preset's name or gains are set. Gains are in dB, from -12 to 12.
    std::optional<std::string> preset;
    std::optional<audio::BandGains> gains;
    /// In dB, from -12 to 12; nothing when it is derived from the gains.
    std::optional<double> preamp;
    std::optional<std::filesystem::path> root;
    bool limiter = true;
};

/// Parses the arguments of the program. Returns nothing after printing the help or version text. Throws
/// UsageError.
std::optional<Options> readOptions(int argumentCount, char** arguments);

} // namespace brimsound::render
