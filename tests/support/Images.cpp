#include "tests/support/Images.h"

#include "platform/UIKit/UIGraphics.h"

#include <cmath>

namespace brimsound::tests {

namespace {

constexpr std::size_t bytesPerPixel = 4;

std::size_t pixelCount(CGFloat points, const UIImage& image)
{
    return static_cast<std::size_t>(std::lround(points * image.scale()));
}

} // namespace

RetainPtr<UIImage> imageOf(std::size_t width, std::size_t height, Bytes bytes)
{
    const auto context = CGBitmapContextCreate(bytes.data(), width, height, width * bytesPerPixel);
    return UIImage::imageWithCGImage(CGBitmapContextCreateImage(context.get()).get());
}

RetainPtr<UIImage> imageAtScale(CGFloat scale, std::size_t width, std::size_t height, const Bytes& bytes)
{
    const CGSize size { static_cast<CGFloat>(width) / scale, static_cast<CGFloat>(height) / scale };
    UIGraphicsBeginImageContextWithOptions(size, scale);
    imageOf(width, height, bytes)->drawInRect({ {}, size });
    auto image = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return image;
}

std::size_t widthOf(const UIImage& image)
{
    return pixelCount(image.size().width, image);
}

std::size_t heightOf(const UIImage& image)
{
    return pixelCount(image.size().height, image);
}

Bytes bytesOf(const UIImage& image)
{
    const auto width = widthOf(image);
    const auto height = heightOf(image);
    Bytes bytes(width * height * bytesPerPixel);
    const auto context = CGBitmapContextCreate(bytes.data(), width, height, width * bytesPerPixel);
    CGContextDrawImage(context.get(),
        CGRectMake(0, 0, static_cast<CGFloat>(width), static_cast<CGFloat>(height)), image.CGImage());
    return bytes;
}

Bytes pixelOf(const UIImage& image, std::size_t x, std::size_t y)
{
    const auto bytes = bytesOf(image);
    const auto start = bytes.begin() + static_cast<std::ptrdiff_t>((y * widthOf(image) + x) * bytesPerPixel);
    return { start, start + bytesPerPixel };
}

Bytes pixels(
    std::size_t width, std::size_t height, const std::function<Bytes(std::size_t x, std::size_t y)>& pixelAt)
{
    Bytes bytes;
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const auto pixel = pixelAt(x, y);
            bytes.insert(bytes.end(), pixel.begin(), pixel.end());
        }
    }
    return bytes;
}

Bytes pattern(std::size_t width, std::size_t height)
{
    return pixels(width, height, [](std::size_t x, std::size_t y) {
        const auto level = [](std::size_t number) { return static_cast<std::uint8_t>(number % 256); };
        return Bytes { level(x * 37 + y * 11), level(x * 5 + y * 71), level(x * 13 + y * 29), 255 };
    });
}

} // namespace brimsound::tests
