#include "platform/UIKit/UIButton.h"

#include "platform/desktop/UIKit/ControlPeer.h"

namespace brimsound {

namespace {

struct ButtonPeer : desktop::ControlPeer {
    desktop::Accessible accessible() const override
    {
        // One that lies over no words is no button to anybody who does not see what it is good for.
        const auto name = desktop::captionOf(static_cast<const UIButton&>(*view));
        if (name.empty())
            return {};
        return { .role = desktop::AccessibleRole::Button, .name = name, .focusable = true };
    }
};

} // namespace

UIButton::UIButton(const CGRect& frame)
    : UIControl(new ButtonPeer)
{
    desktop::peerOf(*this).frame = frame;
}

} // namespace brimsound
