// The folder below which a jailbreak installs packages. A rootful jailbreak installs them in the system's own
// folders: its root is empty. That of a rootless one is /var/jb, or a folder whose name changes with each
// jailbreak. The path of the bundle tells which it is, so that one executable is right for all of them.
#pragma once

#include <string>
#include <string_view>

namespace brimsound::ios {

/// What is before /Library/PreferenceBundles/ in a bundle's path; empty when the path has no such part.
std::string rootOf(std::string_view bundlePath);

/// That of the bundle which contains this code.
std::string jailbreakRoot();

/// Where a file that the product names by its path is: files in /Library come with packages and are below the
/// root.
std::string devicePath(const std::string& path);

} // namespace brimsound::ios
