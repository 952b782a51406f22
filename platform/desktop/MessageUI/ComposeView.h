#pragma once

#include "platform/desktop/effects/Mail.h"
#include "toolkit/control/Button.h"

#include <functional>

namespace brimsound::desktop {

/// Shows a mail: a bar with Cancel and Send, and below it the recipients, subject and attachments. The mail
/// must outlive the view.
class ComposeView : public toolkit::View {
public:
    ComposeView(const Mail&, std::function<void()> onCancel, std::function<void()> onSend);

    void layOut() override;
    void draw(toolkit::Canvas&) const override;
    toolkit::Role role() const override { return toolkit::Role::Dialog; }
    toolkit::Accessible accessible() const override;

    toolkit::TextButton& cancelButton() const { return *_cancel; }
    toolkit::TextButton& sendButton() const { return *_send; }

private:
    void drawRow(toolkit::Canvas&, double& y, const std::string& caption, const std::string& text) const;

    const Mail& _mail;
    toolkit::Ref<toolkit::TextButton> _cancel;
    toolkit::Ref<toolkit::TextButton> _send;
};

} // namespace brimsound::desktop
