// The command line.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>
#include <string>

namespace brimsound::desktop {

struct Options {
    /// The folder that device paths resolve under; empty for the user's data directory.
    QString root;
    bool headless = false;
    /// The gesture script, "-" for standard input; empty for none.
    QString script;
    /// Whether a script's commands, URLs and mails reach the rest of the machine.
    bool live = false;
    /// The picture to write before the end; empty for none.
    QString snapshot;
    /// Device pixels a point; nothing for the screen's own, 2 without a screen.
    std::optional<double> scale;
};

/// A command line that cannot be followed; `what` is the one line to print.
class UsageError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the arguments, the program's name first. Answers --help and --version itself and ends the program
/// then. Throws UsageError.
Options readOptions(const QStringList& arguments);

} // namespace brimsound::desktop
