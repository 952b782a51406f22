#include "settings/UIImage+Equalizer.h"

#include "platform/CommonCrypto/CommonDigest.h"
#include "platform/UIKit/UIGraphics.h"
#include "settings/invertPixels.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>

namespace brimsound {

namespace {

/// An image drawn at one pixel per point. The pixels are allocated once and freed with the bitmap.
class WorkingBitmap {
public:
    explicit WorkingBitmap(const UIImage& image)
    {
        const double width = std::trunc(image.size().width);
        const double height = std::trunc(image.size().height);
        // The digest function counts bytes in 32 bits. The comparison is also false for NaN.
        const bool isBitmap = width >= 1 && height >= 1 && width * height * bytesPerPixel <= UINT32_MAX;
        if (!isBitmap)
            return;
        const auto columns = static_cast<std::size_t>(width);
        const auto rows = static_cast<std::size_t>(height);
        _memory.reset(static_cast<std::uint32_t*>(std::calloc(columns * rows, bytesPerPixel)));
        if (!_memory)
            return;
        _context = CGBitmapContextCreate(_memory.get(), columns, rows, columns * bytesPerPixel);
        if (!_context)
            return;
        _size = columns * rows;
        // The bitmap is still transparent, so copying gives the same result as blending and is faster.
        CGContextSetBlendMode(_context.get(), CGBlendMode::Copy);
        CGContextDrawImage(_context.get(), CGRectMake(0, 0, width, height), image.CGImage());
    }

    /// Empty when the bitmap could not be made.
    std::span<std::uint32_t> pixels() const { return { _memory.get(), _size }; }

    /// A copy. Null when the bitmap could not be made.
    RetainPtr<UIImage> image() const
    {
        const auto picture = CGBitmapContextCreateImage(_context.get());
        return UIImage::imageWithCGImage(picture.get());
    }

private:
    static constexpr std::size_t bytesPerPixel = sizeof(std::uint32_t);

    struct Free {
        void operator()(std::uint32_t* memory) const { std::free(memory); }
    };

    std::unique_ptr<std::uint32_t[], Free> _memory;
    RetainPtr<CGContext> _context;
    std::size_t _size = 0;
};

std::string hexadecimal(std::span<const unsigned char> bytes)
{
    std::string text;
    for (const auto byte : bytes) {
        std::array<char, 3> digits {};
        std::snprintf(digits.data(), digits.size(), "%02x", byte);
        text += digits.data();
    }
    return text;
}

} // namespace

std::string md5Hash(const UIImage& image)
{
    std::array<unsigned char, CC_MD5_DIGEST_LENGTH> digest {};
    {
        const WorkingBitmap bitmap(image);
        const auto upperHalf = bitmap.pixels().size_bytes() / 2;
        CC_MD5(bitmap.pixels().data(), static_cast<CC_LONG>(upperHalf), digest.data());
    }
    return hexadecimal(digest);
}

RetainPtr<UIImage> scaleToSize(const UIImage& image, CGSize size)
{
    UIGraphicsBeginImageContextWithOptions(size, 0);
    image.drawInRect({ {}, size });
    auto scaled = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return scaled;
}

RetainPtr<UIImage> negative(const UIImage& image)
{
    const WorkingBitmap bitmap(image);
    invertPixels(bitmap.pixels());
    return bitmap.image();
}

RetainPtr<UIImage> darkenWithColor(const UIImage& image, const UIColor& color)
{
    return fillWithColorAndBlendMode(image, color, CGBlendMode::Darken);
}

RetainPtr<UIImage> fillWithColor(const UIImage& image, const UIColor& color)
{
    return fillWithColorAndBlendMode(image, color, CGBlendMode::Normal);
}

RetainPtr<UIImage> fillWithColorAndBlendMode(const UIImage& image, const UIColor& color, CGBlendMode mode)
{
    UIGraphicsBeginImageContext(image.size());
    const auto context = UIGraphicsGetCurrentContext();
    // Without this the picture would be upside down.
    CGContextTranslateCTM(context, 0, image.size().height);
    CGContextScaleCTM(context, 1, -1);

    const CGRect rect { {}, image.size() };
    CGContextSetBlendMode(context, CGBlendMode::Normal);
    CGContextDrawImage(context, rect, image.CGImage());
    CGContextSetBlendMode(context, mode);
    color.setFill();
    CGContextFillRect(context, rect);
    // The color stays within the image's shape.
    CGContextSetBlendMode(context, CGBlendMode::DestinationIn);
    CGContextDrawImage(context, rect, image.CGImage());

    auto filled = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return filled;
}

} // namespace brimsound
