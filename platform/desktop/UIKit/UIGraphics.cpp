#include "platform/UIKit/UIGraphics.h"

#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/CoreGraphics/BitmapContext.h"
#include "platform/desktop/UIKit/BitmapImage.h"

#include <cmath>
#include <vector>

namespace brimsound {

namespace {

struct ImageContext {
    /// Null when it could not be created.
    RetainPtr<CGContext> context;
    /// Pixels per point.
    double scale = 1;
};

/// The current one is the last.
std::vector<ImageContext>& imageContexts()
{
    static std::vector<ImageContext> contexts;
    return contexts;
}

/// 0 for an invalid length, or one that is too large.
std::size_t wholePixels(double length)
{
    // Rounding errors must not make a whole number of pixels one larger.
    const double pixels = std::ceil(length - 1e-6);
    return pixels > 0 && pixels <= desktop::longestSide ? static_cast<std::size_t>(pixels) : 0;
}

} // namespace

void UIGraphicsBeginImageContextWithOptions(CGSize size, CGFloat scale)
{
    if (scale == 0)
        scale = UIScreen::mainScreen().scale();
    imageContexts().push_back(
        { desktop::makeCGContext(wholePixels(size.width * scale), wholePixels(size.height * scale), scale),
            scale });
}

void UIGraphicsBeginImageContext(CGSize size)
{
    UIGraphicsBeginImageContextWithOptions(size, 1);
}

void UIGraphicsEndImageContext()
{
    if (!imageContexts().empty())
        imageContexts().pop_back();
}

CGContextRef UIGraphicsGetCurrentContext()
{
    return imageContexts().empty() ? nullptr : imageContexts().back().context.get();
}

RetainPtr<UIImage> UIGraphicsGetImageFromCurrentImageContext()
{
    if (imageContexts().empty())
        return nullptr;
    const auto& [context, scale] = imageContexts().back();
    return desktop::makeImage(CGBitmapContextCreateImage(context.get()), scale);
}

} // namespace brimsound
