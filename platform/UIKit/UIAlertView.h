// Alerts: messages that want an answer.
#pragma once

#include "platform/UIKit/UIAlertViewDelegate.h"
#include "platform/UIKit/UIView.h"

#include <string>
#include <vector>

namespace brimsound {

/// A message with buttons over everything else. One is shown at a time; the next one waits its turn.
class UIAlertView : public UIView {
public:
    /// initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:. An empty title is none. The
    /// delegate is not retained, or for no longer than the alert waits for its answer; null for none. The
    /// cancel button is button 0, the others follow.
    UIAlertView(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
        const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles);

    /// The presentation holds the alert from now until a button was pressed.
    void show();

    void layoutSubviews() override;

protected:
    explicit UIAlertView(Peer*);
};

} // namespace brimsound
