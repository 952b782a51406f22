#include "platform/UIKit/UIImage.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/CoreGraphics/NativeGraphics.h"
#include "platform/ios/Foundation/JailbreakRoot.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>
#import <objc/runtime.h>

namespace brimsound {

using ios::retainedObjectOf;

namespace {

const char pictureKey = 0;

::UIImage* nativeOf(const UIImage& image)
{
    return ios::nativeOf(image);
}

} // namespace

UIImage::UIImage(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIImage> UIImage::imageWithCGImage(CGImageRef picture)
{
    if (!picture)
        return nullptr;
    return retainedObjectOf<UIImage>([::UIImage imageWithCGImage:ios::nativeImage(picture)]);
}

RetainPtr<UIImage> UIImage::imageWithContentsOfFile(const std::string& path)
{
    return retainedObjectOf<UIImage>(
        [::UIImage imageWithContentsOfFile:ios::nativeText(ios::devicePath(path))]);
}

CGSize UIImage::size() const
{
    return ios::ours([nativeOf(*this) size]);
}

CGFloat UIImage::scale() const
{
    return [nativeOf(*this) scale];
}

CGImageRef UIImage::CGImage() const
{
    // Created once and attached to the image, which owns it.
    id kept = objc_getAssociatedObject(nativeOf(*this), &pictureKey);
    if (!kept) {
        const auto picture = ios::makePicture([nativeOf(*this) CGImage]);
        kept = ios::nativeOf(picture.get());
        objc_setAssociatedObject(nativeOf(*this), &pictureKey, kept, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    }
    return ios::objectOf<class CGImage>(kept);
}

void UIImage::drawInRect(const CGRect& rect) const
{
    if (UIGraphicsGetCurrentContext())
        [nativeOf(*this) drawInRect:ios::native(rect)];
}

} // namespace brimsound
