// Lines of a script, as they come.
#pragma once

#include <QFile>
#include <QString>

#include <optional>
#include <string>

namespace brimsound::desktop {

/// Reads a file or, for "-", standard input, one line at a time. While standard input has nothing to say the
/// event loop runs, so that a pane in a window stays alive.
class LineSource {
public:
    /// Throws std::runtime_error when the file cannot be read.
    explicit LineSource(const QString& path);

    /// The next line without its line feed; nothing at the end. Throws ScriptError for a line
    /// that no command is as long as.
    std::optional<std::string> next();

private:
    QFile _file;
};

} // namespace brimsound::desktop
