// Acting as another process on the bus would.
#pragma once

#include <string>

namespace brimsound::desktop {

/// Posts a Darwin notification over a connection of its own, so that nothing in this process takes it for the
/// pane's. It is on its way to every process when this returns. False when the bus cannot be reached.
bool postNotificationAsStranger(const std::string& name);

} // namespace brimsound::desktop
