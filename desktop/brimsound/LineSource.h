#pragma once

#include <QFile>
#include <QString>

#include <optional>
#include <string>

namespace brimsound::desktop {

/// Reads a script line by line from a file or, for "-", from standard input. While it waits for standard
/// input, the event loop runs, so that a pane in a window stays responsive.
class LineSource {
public:
    /// Throws std::runtime_error when the file cannot be read.
    explicit LineSource(const QString& path);

    /// The next line without its line feed; nothing at the end. Throws ScriptError for a line that is longer
    /// than any command.
    std::optional<std::string> next();

private:
    QFile _file;
};

} // namespace brimsound::desktop
