// Importing files of other programs.
#pragma once

#include "desktop/presets/Options.h"
#include "presets/Findings.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound::presets {

class PresetStore;

/// What became of one preset of a file.
struct ImportedPreset {
    enum class Outcome {
        /// Added, or it replaced another one.
        Stored,
        /// The same gains were there under the name.
        AlreadyThere,
        /// The findings tell why.
        Refused,
    };
    Outcome outcome = Outcome::Refused;
    /// Under which it is stored.
    std::string name;
    Conversion conversion;
    Findings findings;
};

/// Reads a file and converts its presets, without storing them. Never empty: a file that cannot be read gives
/// one preset that is refused.
std::vector<ImportedPreset> readFile(const std::filesystem::path&, const Options&);

/// Stores the presets that are not refused in memory, and refuses those whose name is taken unless the
/// options say otherwise.
void store(std::vector<ImportedPreset>&, PresetStore&, Collision);

/// One line for a finding: "FILE:PLACE: warning: text".
std::string lineFor(const Finding&, const std::filesystem::path&);

} // namespace brimsound::presets
