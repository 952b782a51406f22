#pragma once

namespace brimsound {

class UIAlertView;

class UIAlertViewDelegate {
public:
    virtual ~UIAlertViewDelegate() = default;

    /// Called once, when a button is pressed; 0 is the cancel button.
    virtual void alertViewClickedButtonAtIndex(UIAlertView&, long /*buttonIndex*/) { }
};

} // namespace brimsound
