#pragma once

#include "platform/Foundation/NSData.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

struct MailAttachment {
    std::string fileName;
    /// For example "text/plain".
    std::string mimeType;
    NSData data;
};

struct Mail {
    std::string subject;
    /// Mail addresses.
    std::vector<std::string> to;
    std::vector<MailAttachment> attachments;
};

} // namespace brimsound::desktop
