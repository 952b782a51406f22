// What a pane shows, for the trace.
#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/Trace.h"

namespace brimsound::desktop {

/// How the preset panel shows.
enum class PanelState {
    Hidden,
    List,
    Naming,
};

/// Hidden for a panel that was never shown (null).
PanelState panelStateOf(const PlaylistSaver*);

/// The fields of a state line. Sliders, labels, colors and bar are empty or null while there is no pane or
/// its sliders are not built; rows and selected preset are those of the panel's last showing.
Json stateOf(const PaneHost&);

} // namespace brimsound::desktop
