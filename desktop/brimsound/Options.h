// The command-line options.
#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace brimsound::desktop {

struct Options {
    /// The folder that device paths are relative to; empty for the user's data directory.
    QString root;
    bool headless = false;
    /// The gesture script, "-" for standard input; empty for none.
    QString script;
    /// Whether a script's commands, URLs and mails are really passed to other programs.
    bool live = false;
    /// The picture to write at the end; empty for none.
    QString snapshot;
    /// Device pixels per point; nothing for the screen's own scale, or 2 without a screen.
    std::optional<double> scale;
    /// Preset files to import.
    std::vector<std::filesystem::path> files;
};

/// An invalid command line; `what` is the line to print.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Parses the arguments, which begin with the program's name. Handles --help and --version itself and then
/// ends the program. Throws UsageError.
Options readOptions(const QStringList& arguments);

} // namespace brimsound::desktop
