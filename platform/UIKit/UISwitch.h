#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIControl.h"

namespace brimsound {

/// An on/off switch, initially off. A touch toggles it and sends UIControlEventValueChanged.
class UISwitch : public UIControl {
public:
    UISwitch();

    bool isOn() const;
    /// Sends no actions.
    void setOn(bool, Animated);
};

} // namespace brimsound
