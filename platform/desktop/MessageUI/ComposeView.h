#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/desktop/UIKit/TextButton.h"
#include "platform/desktop/effects/Mail.h"

#include <functional>

namespace brimsound::desktop {

/// Shows a mail: a bar with Cancel and Send, and below it the recipients, subject and attachments. The mail
/// must outlive the view.
class ComposeView : public UIView {
public:
    ComposeView(const Mail&, std::function<void()> onCancel, std::function<void()> onSend);

    void layoutSubviews() override;

    TextButton& cancelButton() const { return *_cancel; }
    TextButton& sendButton() const { return *_send; }

private:
    RetainPtr<TextButton> _cancel;
    RetainPtr<TextButton> _send;
};

} // namespace brimsound::desktop
