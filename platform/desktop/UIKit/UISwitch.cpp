#include "platform/UIKit/UISwitch.h"

#include "platform/desktop/UIKit/ControlTargets.h"
#include "toolkit/control/Switch.h"

namespace brimsound {

namespace {

toolkit::Switch& native(const UISwitch& view)
{
    return desktop::nativeOf<toolkit::Switch>(view);
}

} // namespace

UISwitch::UISwitch()
    : UIControl(desktop::peer(new desktop::HostedControl<toolkit::Switch>))
{
}

bool UISwitch::isOn() const
{
    return native(*this).isOn();
}

void UISwitch::setOn(bool on, Animated animated)
{
    native(*this).setOn(on, animated == Animated::Yes);
}

} // namespace brimsound
