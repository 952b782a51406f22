#include "platform/desktop/Qt/Raster.h"

#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/Qt/QtCanvas.h"

#include <cmath>

namespace brimsound::desktop {

namespace {

/// For painting on the pixels, which must outlive it.
QImage paintable(const Pixels& pixels)
{
    return { pixels.bytes, static_cast<int>(pixels.width), static_cast<int>(pixels.height),
        static_cast<qsizetype>(pixels.bytesPerRow), QImage::Format_RGBA8888_Premultiplied };
}

} // namespace

QImage qImage(const toolkit::Pixels& pixels)
{
    return { pixels.bytes, static_cast<int>(pixels.width), static_cast<int>(pixels.height),
        static_cast<qsizetype>(pixels.bytesPerRow), QImage::Format_RGBA8888_Premultiplied };
}

std::shared_ptr<const Bitmap> rasterized(const toolkit::Image& image, double scale)
{
    const auto bitmap = Bitmap::make(static_cast<std::size_t>(std::ceil(image.size().width * scale)),
        static_cast<std::size_t>(std::ceil(image.size().height * scale)));
    if (!bitmap)
        return nullptr;
    auto picture = paintable(bitmap->pixels());
    QPainter painter(&picture);
    painter.scale(scale, scale);
    const QRectF bounds(0, 0, image.size().width, image.size().height);
    painter.setClipRect(bounds);
    QtCanvas canvas(painter, scale);
    image.draw(canvas, { {}, image.size() });
    return bitmap;
}

std::shared_ptr<const Bitmap> readPng(std::span<const std::byte> bytes)
{
    const auto picture
        = QImage::fromData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())), "PNG")
              .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    if (picture.isNull())
        return nullptr;
    // The pixels are only read.
    auto* pixels = const_cast<uchar*>(picture.constBits());
    return Bitmap::copyOf({ pixels, static_cast<std::size_t>(picture.width()),
        static_cast<std::size_t>(picture.height()), static_cast<std::size_t>(picture.bytesPerLine()) });
}

bool writePng(const UIImage& image, const QString& path)
{
    const auto* picture = image.CGImage();
    if (!picture)
        return false;
    const auto& [bytes, width, height, bytesPerRow] = bitmapOf(*picture).pixels();
    return qImage({ bytes, width, height, bytesPerRow }).save(path, "PNG");
}

} // namespace brimsound::desktop
