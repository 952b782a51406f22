#include "desktop/brimsound/LineSource.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <stdexcept>
#include <unistd.h>

namespace brimsound::desktop {

LineSource::LineSource(const QString& path)
    : _file(path)
{
    // Neither Qt nor stdio may read ahead: the notifier below tells only of lines that are still in the pipe.
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
    auto line = _file.readLine();
    if (line.isEmpty())
        return std::nullopt;
    if (line.endsWith('\n'))
        line.chop(1);
    return line.toStdString();
}

} // namespace brimsound::desktop
