#pragma once

#include <string>
#include <vector>

namespace brimsound::desktop {

struct MailWithFiles {
    std::string subject;
    std::vector<std::string> to;
    /// Paths of the attachments.
    std::vector<std::string> files;
};

/// Runs the desktop's script xdg-email, without a shell, to open the user's mail program. Returns false when
/// the script or a mail program is missing, when the script failed, or when it would not preserve the mail's
/// text. A mail program that stays in the foreground is left running.
bool composeWithXdgEmail(const MailWithFiles&);

} // namespace brimsound::desktop
