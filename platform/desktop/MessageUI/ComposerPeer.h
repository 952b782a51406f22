#pragma once

#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/desktop/UIKit/ViewControllerPeer.h"
#include "platform/desktop/effects/Mail.h"

namespace brimsound::desktop {

/// Shows the mail in a sheet of the window. Send passes it to the user's mail program.
struct ComposerPeer : ViewControllerPeer {
    ComposerPeer();

    MFMailComposeViewController* composer = nullptr;
    MFMailComposeViewControllerDelegate* delegate = nullptr;
    Mail mail;

    void send();
    void cancel();
    /// No key sends the mail, so that it is not sent by accident.
    void escape() override { cancel(); }

private:
    void finish(MFMailComposeResult, const NSError*);

    bool _isFinished = false;
};

ComposerPeer& peerOf(const MFMailComposeViewController&);

} // namespace brimsound::desktop
