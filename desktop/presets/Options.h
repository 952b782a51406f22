// The options of brimsound-presets.
#pragma once

#include "presets/Conversion.h"
#include "presets/Reading.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace brimsound::presets {

/// Invalid arguments; `what` is the line to print.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class Command { List, Show, Import, Export, Rename, Delete };

/// What to do with an imported preset whose name is taken.
enum class Collision { Refuse, Replace, Rename };

struct Options {
    Command command = Command::List;
    /// Names or files, in the number that the command takes.
    std::vector<std::string> arguments;
    std::optional<std::filesystem::path> root;

    /// list, show
    bool json = false;

    /// export, import
    std::optional<Format> format;

    /// export: where to write instead of standard output, and whether over an existing file.
    std::optional<std::filesystem::path> output;
    bool force = false;

    /// import
    ReadingOptions reading;
    Copying copying = Copying::Allowed;
    std::optional<std::string> name;
    Collision collision = Collision::Refuse;
    /// Whether a warning keeps a preset from being imported.
    bool strict = false;
    bool dryRun = false;
};

/// Parses the arguments of the program. Returns nothing after printing the help or version text. Throws
/// UsageError.
std::optional<Options> readOptions(int argumentCount, char** arguments);

} // namespace brimsound::presets
