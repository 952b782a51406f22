// The desktop's script that opens the user's mail program.
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

/// Runs xdg-email without a shell. False when it is not there, failed, or would garble something of the mail,
/// and when there is no mail program. A mail program that does not put itself into the background is left
/// running.
bool composeWithXdgEmail(const MailWithFiles&);

} // namespace brimsound::desktop
