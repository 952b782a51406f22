// Handing a mail to the desktop's mail program.
#pragma once

#include "platform/desktop/effects/Mail.h"

#include <string>

namespace brimsound::desktop {

/// Opens the mail in the user's mail program, ready to be sent: with `xdg-email --attach`, else as a draft
/// file (RFC 5322) that is opened with whatever the desktop opens such files with. The files that this takes
/// lie in a folder for the user alone below the user's cache folder, where the mail program can read them for
/// as long as it needs; those of earlier days are removed. True when a program took the mail; else false and
/// `reason` says why.
bool handOver(const Mail&, std::string& reason);

/// The mail as an RFC 5322 message, its attachments encoded so that their bytes survive.
std::string messageOf(const Mail&);

} // namespace brimsound::desktop
