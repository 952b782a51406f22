#include "platform/UIKit/UIScreen.h"

#include "platform/ios/CoreGraphics/Geometry.h"

#import <UIKit/UIKit.h>

namespace brimsound {

const UIScreen& UIScreen::mainScreen()
{
    static const UIScreen screen;
    return screen;
}

CGFloat UIScreen::scale() const
{
    return [[::UIScreen mainScreen] scale];
}

CGRect UIScreen::bounds() const
{
    return ios::ours([[::UIScreen mainScreen] bounds]);
}

} // namespace brimsound
