// Where the program's bundle is installed.
#pragma once

#include <string>

namespace brimsound::doubles {

/// From now on the program's bundle says that this is its path. An empty path restores its own.
void setBundlePath(const std::string& path);

} // namespace brimsound::doubles
