#include "tests/doubles/CoreGraphics/Picture.h"

#import <UIKit/UIKit.h>

#include <cmath>
#include <vector>

@interface UIImage (AnyScale)
+ (UIImage*)imageWithCGImage:(CGImageRef)image scale:(CGFloat)scale;
@end

namespace {

struct ImageContext {
    /// Null where it could not be made.
    CGContextRef context = nullptr;
    /// Pixels a point.
    CGFloat scale = 1;
};

/// The current one last.
std::vector<ImageContext>& imageContexts()
{
    static std::vector<ImageContext> contexts;
    return contexts;
}

/// 0 for what is no length, or too long.
std::size_t wholePixels(CGFloat length)
{
    // What is a whole number but for the last digits that its factors were rounded to is meant to be one.
    const CGFloat pixels = std::ceil(length - 1e-6);
    return pixels > 0 && pixels <= brimsound::desktop::longestSide ? static_cast<std::size_t>(pixels) : 0;
}

} // namespace

void UIGraphicsBeginImageContext(CGSize size)
{
    UIGraphicsBeginImageContextWithOptions(size, NO, 1);
}

void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale)
{
    if (scale == 0)
        scale = [[UIScreen mainScreen] scale];
    const CGContextRef context = brimsound::doubles::makeContext(
        wholePixels(size.width * scale), wholePixels(size.height * scale), scale);
    if (opaque)
        CGContextFillRect(context, CGRectMake(0, 0, size.width, size.height));
    imageContexts().push_back({ context, scale });
}

void UIGraphicsEndImageContext()
{
    if (imageContexts().empty())
        return;
    CGContextRelease(imageContexts().back().context);
    imageContexts().pop_back();
}

CGContextRef UIGraphicsGetCurrentContext()
{
    return imageContexts().empty() ? nullptr : imageContexts().back().context;
}

UIImage* UIGraphicsGetImageFromCurrentImageContext()
{
    if (imageContexts().empty())
        return nil;
    const auto& [context, scale] = imageContexts().back();
    const CGImageRef picture = CGBitmapContextCreateImage(context);
    UIImage* image = [UIImage imageWithCGImage:picture scale:scale];
    CGImageRelease(picture);
    return image;
}
