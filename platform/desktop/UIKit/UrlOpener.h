// Opens URLs and files with the desktop's programs.
#pragma once

#include <string>

namespace brimsound::desktop {

/// Whether there is a default program for the URL's scheme.
bool hasProgramFor(const std::string& url);
/// Starts the scheme's default program with the URL. False when there is none or it cannot be started.
bool openWithProgram(const std::string& url);

/// Starts the default program for files of that type ("message/rfc822") with the file. False when there is
/// none or it cannot be started.
bool openFileWithProgram(const std::string& path, const std::string& mimeType);

} // namespace brimsound::desktop
