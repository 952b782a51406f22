#pragma once

#include <string>
#include <string_view>

namespace brimsound::desktop {

/// The distribution's version ("12"), or the kernel's release for a distribution without versions.
std::string systemVersion();

/// The value of a variable in the text of an os-release file; empty when it is missing.
std::string valueInOsRelease(std::string_view text, std::string_view name);

} // namespace brimsound::desktop
