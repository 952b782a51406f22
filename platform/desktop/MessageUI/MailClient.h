#pragma once

#include "platform/desktop/effects/Mail.h"

#include <string>

namespace brimsound::desktop {

/// Opens the mail in the user's mail program, ready to be sent. Runs `xdg-email --attach`; if that fails,
/// writes a draft file (RFC 5322) and opens it in the desktop's program for such files. The mail's files are
/// stored in a private folder in the user's cache folder, where the mail program can read them as long as it
/// needs; files more than a day old are deleted. Returns true when a program took the mail, otherwise false
/// with the cause in `reason`.
bool handOver(const Mail&, std::string& reason);

/// The mail as an RFC 5322 message. Its attachments are encoded so that their bytes are preserved.
std::string messageOf(const Mail&);

} // namespace brimsound::desktop
