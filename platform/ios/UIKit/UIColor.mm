#include "platform/UIKit/UIColor.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <algorithm>

namespace brimsound {

using ios::retainedObjectOf;

namespace {

/// From iOS 10 on, the platform keeps components outside this range for programs linked against it.
CGFloat inRange(CGFloat component)
{
    return std::clamp(component, CGFloat(0), CGFloat(1));
}

/// Takes over the reference from the native color's creation. Autoreleased colors would stay in memory until
/// the end of the run-loop turn, and a drag creates many.
RetainPtr<UIColor> adopted(::UIColor* native)
{
    auto color = retainedObjectOf<UIColor>(native);
    [native release];
    return color;
}

} // namespace

UIColor::UIColor(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIColor> UIColor::colorWithRedGreenBlueAlpha(
    CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha)
{
    return adopted([[::UIColor alloc] initWithRed:inRange(red)
                                            green:inRange(green)
                                             blue:inRange(blue)
                                            alpha:inRange(alpha)]);
}

RetainPtr<UIColor> UIColor::colorWithHueSaturationBrightnessAlpha(
    CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha)
{
    return adopted([[::UIColor alloc] initWithHue:inRange(hue)
                                       saturation:inRange(saturation)
                                       brightness:inRange(brightness)
                                            alpha:inRange(alpha)]);
}

RetainPtr<UIColor> UIColor::colorWithWhiteAlpha(CGFloat white, CGFloat alpha)
{
    return adopted([[::UIColor alloc] initWithWhite:inRange(white) alpha:inRange(alpha)]);
}

RetainPtr<UIColor> UIColor::blackColor()
{
    return retainedObjectOf<UIColor>([::UIColor blackColor]);
}

RetainPtr<UIColor> UIColor::whiteColor()
{
    return retainedObjectOf<UIColor>([::UIColor whiteColor]);
}

RetainPtr<UIColor> UIColor::yellowColor()
{
    return retainedObjectOf<UIColor>([::UIColor yellowColor]);
}

RetainPtr<UIColor> UIColor::lightGrayColor()
{
    return retainedObjectOf<UIColor>([::UIColor lightGrayColor]);
}

RetainPtr<UIColor> UIColor::clearColor()
{
    return retainedObjectOf<UIColor>([::UIColor clearColor]);
}

bool UIColor::getRedGreenBlueAlpha(CGFloat& red, CGFloat& green, CGFloat& blue, CGFloat& alpha) const
{
    return [ios::nativeOf(*this) getRed:&red green:&green blue:&blue alpha:&alpha];
}

bool UIColor::getHueSaturationBrightnessAlpha(
    CGFloat& hue, CGFloat& saturation, CGFloat& brightness, CGFloat& alpha) const
{
    return [ios::nativeOf(*this) getHue:&hue saturation:&saturation brightness:&brightness alpha:&alpha];
}

void UIColor::setFill() const
{
    if (UIGraphicsGetCurrentContext())
        [ios::nativeOf(*this) setFill];
}

} // namespace brimsound
