// The fonts that the machine has.
#pragma once

#include <string>

namespace brimsound::desktop {

/// Whether the machine has a font to show for the PostScript name.
bool fontExists(const std::string& postScriptName);

} // namespace brimsound::desktop
