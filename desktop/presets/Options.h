// The options of brimsound-presets.
#pragma once

#include "desktop/presets/Import.h"

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

struct Options {
    Command command = Command::List;
    /// Names or files, in the number that the command takes.
    std::vector<std::string> arguments;
    std::optional<std::filesystem::path> root;

    /// list, show
    bool json = false;

    /// export: what to write, where instead of standard output, and whether over an existing file.
    Format format = Format::BrimsoundJson;
    std::optional<std::filesystem::path> output;
    bool force = false;

    /// import
    ImportOptions importing;
    Collision collision = Collision::Refuse;
    bool dryRun = false;
};

/// Parses the arguments of the program. Returns nothing after printing the help or version text. Throws
/// UsageError.
std::optional<Options> readOptions(int argumentCount, char** arguments);

} // namespace brimsound::presets
