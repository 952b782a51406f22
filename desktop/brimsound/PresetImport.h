#pragma once

#include "desktop/brimsound/PaneHost.h"

#include <filesystem>
#include <vector>

namespace brimsound::desktop {

/// Imports preset files of this and other equalizers. A single preset is then chosen in the pane, as by a tap
/// on its row; for several, the pane shows the list. An alert asks before presets are replaced, and another
/// one shows what could not be imported. The host outlives its alerts.
void importPresets(PaneHost&, const std::vector<std::filesystem::path>& paths);

} // namespace brimsound::desktop
