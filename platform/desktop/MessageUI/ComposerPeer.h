// What stands behind a MFMailComposeViewController.
#pragma once

#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/desktop/UIKit/ViewControllerPeer.h"
#include "platform/desktop/effects/Mail.h"

namespace brimsound::desktop {

/// Shows the mail in a sheet of the window. Send hands it over to the user's mail program.
struct ComposerPeer : ViewControllerPeer {
    ComposerPeer();

    MFMailComposeViewController* composer = nullptr;
    MFMailComposeViewControllerDelegate* delegate = nullptr;
    Mail mail;

    void send();
    void cancel();
    /// Nothing sends but the button, so that no stray key does.
    void escape() override { cancel(); }

private:
    void finish(MFMailComposeResult, const NSError*);

    bool _isFinished = false;
};

ComposerPeer& peerOf(const MFMailComposeViewController&);

} // namespace brimsound::desktop
