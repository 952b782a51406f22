// The pane's state, for the trace.
#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/Trace.h"

namespace brimsound::desktop {

/// The visible state of the preset panel.
enum class PanelState {
    Hidden,
    List,
    Naming,
};

/// Hidden when the panel was never shown (null).
PanelState panelStateOf(const PlaylistSaver*);

/// The fields of a state line. Sliders, labels, colors and bar are empty or null when there is no pane or its
/// sliders are not built. Rows and selected preset are those of the last time the panel was shown.
Json stateOf(const PaneHost&);

} // namespace brimsound::desktop
