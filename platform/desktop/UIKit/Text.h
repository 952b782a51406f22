#pragma once

#include <string>

namespace brimsound::desktop {

/// Whether the machine has a font with this PostScript name or a replacement.
bool fontExists(const std::string& postScriptName);

} // namespace brimsound::desktop
