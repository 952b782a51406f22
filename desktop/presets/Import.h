// Importing files of other programs.
#pragma once

#include "presets/Conversion.h"
#include "presets/Reading.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::presets {

class PresetStore;

/// What to do with an imported preset whose name is taken.
enum class Collision { Refuse, Replace, Rename };

struct ImportOptions {
    /// Nothing to recognize it.
    std::optional<Format> format;
    ReadingOptions reading;
    Copying copying = Copying::Allowed;
    /// For the one preset of a file. Without it, the file's name is used for a preset without one.
    std::optional<std::string> name;
    /// Whether a warning keeps a preset from being imported.
    bool strict = false;
};

/// What became of one preset of a file.
struct ImportedPreset {
    enum class Outcome {
        /// Added, or it replaced another one.
        Stored,
        /// The same gains were there under the name.
        AlreadyThere,
        /// There is another preset of that name.
        NameTaken,
        /// The findings tell why.
        Refused,
    };
    Outcome outcome = Outcome::Refused;
    /// Under which it is stored.
    std::string name;
    Conversion conversion;
    Findings findings;

    bool isInStore() const { return outcome == Outcome::Stored || outcome == Outcome::AlreadyThere; }
};

struct ImportedFile {
    std::filesystem::path path;
    /// Never empty: a file that cannot be read has one preset that is refused.
    std::vector<ImportedPreset> presets;
};

/// Reads a file and converts its presets, without storing them.
ImportedFile readFile(const std::filesystem::path&, const ImportOptions&);

/// Adds the presets that are not refused to the store, and sets their outcomes and names. Does not save.
void store(std::vector<ImportedFile>&, PresetStore&, Collision);

/// One line for a finding: "FILE:PLACE: warning: text".
std::string lineFor(const Finding&, const std::filesystem::path&);

} // namespace brimsound::presets
