// What a pane shows, for the trace.
#pragma once

#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/Trace.h"

namespace brimsound::desktop {

/// The fields of a state line. Sliders, labels, colours and bar are empty or null while there is no pane or
/// its sliders are not built.
Json stateOf(const PaneHost&);

} // namespace brimsound::desktop
