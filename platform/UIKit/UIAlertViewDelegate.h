// Who hears of an alert's answer.
#pragma once

namespace brimsound {

class UIAlertView;

class UIAlertViewDelegate {
public:
    virtual ~UIAlertViewDelegate() = default;

    /// Called once, when a button was pressed; 0 is the cancel button.
    virtual void alertViewClickedButtonAtIndex(UIAlertView&, long /*buttonIndex*/) { }
};

} // namespace brimsound
