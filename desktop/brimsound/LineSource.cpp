#include "desktop/brimsound/LineSource.h"

#include "desktop/brimsound/Script.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <stdexcept>
#include <unistd.h>

namespace brimsound::desktop {

namespace {

// In bytes without the line feed. The limit is for files without line feeds, such as /dev/zero.
constexpr qint64 longestLine = qint64 { 64 } * 1024;

} // namespace

LineSource::LineSource(const QString& path)
    : _file(path)
{
    // Neither Qt nor stdio may read ahead: the notifier below only reports lines that are still in the pipe.
    const bool opened = path == "-" ? _file.open(STDIN_FILENO, QIODevice::ReadOnly | QIODevice::Unbuffered)
                                    : _file.open(QIODevice::ReadOnly);
    if (!opened)
        throw std::runtime_error("the script \"" + path.toStdString() + "\" cannot be read");
}

std::optional<std::string> LineSource::next()
{
    if (_file.isSequential()) {
        QSocketNotifier readable(_file.handle(), QSocketNotifier::Read);
        QEventLoop loop;
        QObject::connect(&readable, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
        loop.exec();
    }
    // One more byte to detect a longer line, and one for a terminating NUL that Qt may add.
    auto line = _file.readLine(longestLine + 2);
    if (line.isEmpty())
        return std::nullopt;
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.size() > longestLine)
        throw ScriptError("the line is too long");
    return line.toStdString();
}

} // namespace brimsound::desktop
