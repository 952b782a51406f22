#pragma once

#include "platform/Foundation/NSData.h"
#include "platform/MessageUI/MFMailComposeViewControllerDelegate.h"
#include "platform/UIKit/UIViewController.h"

#include <string>
#include <vector>

namespace brimsound {

/// A sheet that shows a mail for the user to send or to cancel.
class MFMailComposeViewController : public UIViewController {
public:
    MFMailComposeViewController();

    /// Not retained, or only while the sheet is shown. May be null.
    void setMailComposeDelegate(MFMailComposeViewControllerDelegate*);

    void setSubject(const std::string&);
    /// Mail addresses.
    void setToRecipients(const std::vector<std::string>&);
    /// The bytes are attached unchanged, with that MIME type ("text/plain") and file name.
    void addAttachmentDataMimeTypeFileName(
        NSData data, const std::string& mimeType, const std::string& fileName);

protected:
    explicit MFMailComposeViewController(Peer*);
};

} // namespace brimsound
