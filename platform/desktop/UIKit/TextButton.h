// Buttons that are a word: those of alerts and of a sheet's bar.
#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIFont.h"

#include <functional>
#include <string>

namespace brimsound::desktop {

/// Shows its title in the tint, and is shaded while it is pressed.
class TextButton : public UIControl {
public:
    TextButton(const std::string& title, RetainPtr<UIFont> font, std::function<void()> onPress);

    const std::string& title() const;
    /// Does what a touch that ends inside does.
    void press();
};

} // namespace brimsound::desktop
