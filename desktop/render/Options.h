// What brimsound-render is asked for.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace brimsound::render {

/// Arguments that make no sense; says which and why in one line.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Options {
    std::filesystem::path in;
    std::filesystem::path out;
    /// Either the name of a preset or gains is set. Gains are in dB, from -12 to 12.
    std::optional<std::string> preset;
    std::optional<audio::BandGains> gains;
    /// In dB, from -12 to 12; nothing when it follows from the gains.
    std::optional<double> preamp;
    std::optional<std::filesystem::path> root;
    bool limiter = true;
};

/// Reads the arguments of a program. Nothing when a text was asked for, which has been printed. Throws
/// UsageError.
std::optional<Options> readOptions(int argumentCount, char** arguments);

} // namespace brimsound::render
