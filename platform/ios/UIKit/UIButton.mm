#include "platform/UIKit/UIButton.h"

#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

UIButton::UIButton(const CGRect& frame)
    : UIControl(ios::peer([[::UIButton buttonWithType:UIButtonTypeCustom] retain]))
{
    UIView::setFrame(frame);
}

} // namespace brimsound
