#pragma once

#include "platform/UIKit/UIControl.h"

namespace brimsound {

/// A button of the custom type: it draws nothing of its own and sends control events.
class UIButton : public UIControl {
public:
    explicit UIButton(const CGRect& frame = {});
};

} // namespace brimsound
