// The commands of brimsound-presets. Results go to standard output, everything else to standard error.
#pragma once

#include "desktop/presets/Options.h"

namespace brimsound::presets {

/// Runs a command and returns the exit status: 0, or 1 when something was not done, which was reported.
/// Throws std::runtime_error when nothing was done.
int run(const Options&);

} // namespace brimsound::presets
