#include "platform/UIKit/UIControl.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

namespace {

::UIControl* nativeOf(const UIControl& control)
{
    return ios::nativeOf(control);
}

} // namespace

UIControl::UIControl(Peer* peer)
    : UIView(peer)
{
}

void UIControl::addTargetActionForControlEvents(
    NSObject& target, std::string_view action, UIControlEvents events)
{
    // The platform would end the process at a selector that the target does not implement.
    if (!target.respondsToSelector(action))
        return;
    ios::answerSelectors(target);
    [nativeOf(*this) addTarget:ios::nativeOf(target)
                        action:NSSelectorFromString(ios::nativeText(action))
              forControlEvents:static_cast<::UIControlEvents>(events)];
}

void UIControl::sendActionsForControlEvents(UIControlEvents events)
{
    [nativeOf(*this) sendActionsForControlEvents:static_cast<::UIControlEvents>(events)];
}

} // namespace brimsound
