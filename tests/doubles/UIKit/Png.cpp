#include "tests/doubles/UIKit/Png.h"

#include <png.h>

namespace brimsound::doubles {

namespace {

void premultiply(const desktop::Pixels& pixels)
{
    for (std::size_t y = 0; y < pixels.height; ++y) {
        auto* const end = pixels.row(y) + pixels.width * desktop::Bitmap::bytesPerPixel;
        for (auto* pixel = pixels.row(y); pixel < end; pixel += desktop::Bitmap::bytesPerPixel) {
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = static_cast<std::uint8_t>((pixel[channel] * pixel[3] + 127) / 255);
        }
    }
}

} // namespace

std::shared_ptr<desktop::Bitmap> readPng(const void* bytes, std::size_t length)
{
    png_image image {};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes, length))
        return nullptr;
    image.format = PNG_FORMAT_RGBA;
    auto bitmap = desktop::Bitmap::make(image.width, image.height);
    const bool isRead = bitmap && png_image_finish_read(&image, nullptr, bitmap->pixels().bytes, 0, nullptr);
    png_image_free(&image);
    if (!isRead)
        return nullptr;
    premultiply(bitmap->pixels());
    return bitmap;
}

} // namespace brimsound::doubles
