#include "platform/UIKit/UIButton.h"

#include "platform/desktop/UIKit/ControlTargets.h"
#include "toolkit/control/Button.h"

namespace brimsound {

UIButton::UIButton(const CGRect& frame)
    : UIControl(desktop::peer(new desktop::HostedControl<toolkit::Button>(desktop::toolkitRect(frame))))
{
}

} // namespace brimsound
