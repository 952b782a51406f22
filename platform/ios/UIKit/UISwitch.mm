#include "platform/UIKit/UISwitch.h"

#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

UISwitch::UISwitch()
    : UIControl(ios::peer([[::UISwitch alloc] init]))
{
}

bool UISwitch::isOn() const
{
    return [ios::nativeOf(*this) isOn];
}

void UISwitch::setOn(bool on, Animated animated)
{
    [ios::nativeOf(*this) setOn:on animated:animated == Animated::Yes];
}

} // namespace brimsound
