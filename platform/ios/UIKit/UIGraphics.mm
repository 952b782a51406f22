#include "platform/UIKit/UIGraphics.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/CoreGraphics/NativeGraphics.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <vector>

namespace brimsound {

namespace {

/// The maximum side of a bitmap, in pixels.
constexpr double longestSide = 32767;

/// The stack of contexts; null for one that could not be created.
std::vector<RetainPtr<CGContext>>& imageContexts()
{
    static std::vector<RetainPtr<CGContext>> contexts;
    return contexts;
}

bool isSide(double pixels)
{
    return pixels > 0 && pixels <= longestSide;
}

} // namespace

void UIGraphicsBeginImageContextWithOptions(CGSize size, CGFloat scale)
{
    const double pixelsPerPoint = scale == 0 ? [[::UIScreen mainScreen] scale] : scale;
    if (!isSide(size.width * pixelsPerPoint) || !isSide(size.height * pixelsPerPoint)) {
        imageContexts().emplace_back();
        return;
    }
    ::UIGraphicsBeginImageContextWithOptions(ios::native(size), NO, scale);
    imageContexts().push_back(ios::makeContext(::UIGraphicsGetCurrentContext()));
    if (!imageContexts().back())
        ::UIGraphicsEndImageContext();
}

void UIGraphicsBeginImageContext(CGSize size)
{
    UIGraphicsBeginImageContextWithOptions(size, 1);
}

void UIGraphicsEndImageContext()
{
    if (imageContexts().empty())
        return;
    if (imageContexts().back())
        ::UIGraphicsEndImageContext();
    imageContexts().pop_back();
}

CGContextRef UIGraphicsGetCurrentContext()
{
    return imageContexts().empty() ? nullptr : imageContexts().back().get();
}

RetainPtr<UIImage> UIGraphicsGetImageFromCurrentImageContext()
{
    if (!UIGraphicsGetCurrentContext())
        return nullptr;
    return ios::retainedObjectOf<UIImage>(::UIGraphicsGetImageFromCurrentImageContext());
}

} // namespace brimsound
