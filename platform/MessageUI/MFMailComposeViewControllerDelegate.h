#pragma once

#include "platform/Foundation/NSError.h"

namespace brimsound {

class MFMailComposeViewController;

/// The numbers are the platform's.
enum class MFMailComposeResult {
    Cancelled = 0,
    Saved = 1,
    Sent = 2,
    Failed = 3,
};

class MFMailComposeViewControllerDelegate {
public:
    virtual ~MFMailComposeViewControllerDelegate() = default;

    /// The user sent or canceled the mail; the sheet is still shown. `error` is null unless the result is
    /// Failed.
    virtual void mailComposeControllerDidFinishWithResultError(
        MFMailComposeViewController&, MFMailComposeResult, const NSError* /*error*/)
        = 0;
};

} // namespace brimsound
