// Who hears how a mail ended.
#pragma once

#include "platform/Foundation/NSError.h"

namespace brimsound {

class MFMailComposeViewController;

/// With the platform's numbers.
enum class MFMailComposeResult {
    Cancelled = 0,
    Saved = 1,
    Sent = 2,
    Failed = 3,
};

class MFMailComposeViewControllerDelegate {
public:
    virtual ~MFMailComposeViewControllerDelegate() = default;

    /// The user sent or canceled the mail; the sheet still stands. `error` is null unless the result is
    /// Failed.
    virtual void mailComposeControllerDidFinishWithResultError(
        MFMailComposeViewController&, MFMailComposeResult, const NSError* /*error*/)
        = 0;
};

} // namespace brimsound
