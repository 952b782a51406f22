#pragma once

#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/desktop/UIKit/Controller.h"
#include "platform/desktop/effects/Mail.h"

namespace brimsound::desktop {

/// Shows the mail in a sheet of the window. Send passes it to the user's mail program.
class Composer : public Controller {
public:
    Composer();

    Mail& mail() { return _mail; }
    /// Not retained; null for none.
    void setDelegate(MFMailComposeViewControllerDelegate* delegate) { _delegate = delegate; }

    void send();
    void cancel();
    /// No key sends the mail, so that it is not sent by accident.
    void escape() override { cancel(); }

private:
    void finish(MFMailComposeResult, const NSError*);

    Mail _mail;
    MFMailComposeViewControllerDelegate* _delegate = nullptr;
    bool _isFinished = false;
};

} // namespace brimsound::desktop
