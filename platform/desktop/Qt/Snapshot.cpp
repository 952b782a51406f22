#include "platform/desktop/Qt/Snapshot.h"

#include "platform/desktop/Qt/QtCanvas.h"

#include <QPainter>

namespace brimsound::desktop {

namespace {

/// The maximum size of a picture in pixels, to limit the memory; a pixel takes four bytes.
constexpr double mostPixels = 1e8;

} // namespace

QImage pictureOf(toolkit::Window& window, double scale)
{
    window.layOutAll();
    const auto size = window.bounds().size;
    if (size.width * scale * size.height * scale > mostPixels)
        return {};
    QImage picture((QSizeF(size.width, size.height) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(QRectF(0, 0, size.width, size.height));
    QtCanvas canvas(painter, scale);
    window.drawTree(canvas);
    return picture;
}

bool writeSnapshot(toolkit::Window& window, double scale, const QString& path)
{
    return pictureOf(window, scale).save(path, "PNG");
}

} // namespace brimsound::desktop
