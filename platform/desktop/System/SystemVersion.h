#pragma once

#include <string>

namespace brimsound::desktop {

/// The distribution's version ("12"), or the kernel's release for a distribution without versions.
std::string systemVersion();

} // namespace brimsound::desktop
