#pragma once

#include "platform/UIKit/UIAlertViewDelegate.h"
#include "platform/UIKit/UIView.h"

#include <string>
#include <vector>

namespace brimsound {

/// An alert: a message with buttons, shown over everything else. Alerts are shown one at a time; later ones
/// wait.
class UIAlertView : public UIView {
public:
    /// initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:. An empty title means no title.
    /// The delegate is not retained, or only while the alert is shown; it may be null. The cancel button is
    /// button 0; the others follow.
    UIAlertView(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
        const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles);

    /// Shows the alert. It is retained until a button is pressed.
    void show();

    void layoutSubviews() override;

protected:
    explicit UIAlertView(Peer*);
};

} // namespace brimsound
