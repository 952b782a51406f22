#include "tests/end_to_end/brimsound/ScreenPicture.h"

#include <QFile>
#include <QtEndian>

#include <stdexcept>

namespace brimsound::tests {

QImage pictureOf(const Screen& screen)
{
    QFile file(QString::fromStdString(screen.pixels()));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the screen's pixels cannot be read");
    const auto bytes = file.readAll();
    // XWDFile.h of X11 describes the header.
    const auto field
        = [&](qsizetype index) { return qFromBigEndian<quint32>(bytes.constData() + 4 * index); };
    const auto headerSize = field(0);
    const auto width = static_cast<int>(field(4));
    const auto height = static_cast<int>(field(5));
    const auto bytesPerLine = static_cast<qsizetype>(field(12));
    constexpr quint32 colorSize = 12;
    const auto pixels = headerSize + field(19) * colorSize;
    return QImage(reinterpret_cast<const uchar*>(bytes.constData()) + pixels, width, height, bytesPerLine,
        QImage::Format_RGB32)
        .copy();
}

} // namespace brimsound::tests
