// Control of the simulated Darwin notify center.
#pragma once

#include <string>

namespace brimsound::doubles {

/// Posts a notification that is not recorded as an effect of the pane.
void postFromAnotherProcess(const std::string& name);

/// Runs the main loop until every posted notification has been delivered.
void deliverNotifications();

/// Drops the posted notifications that are not delivered yet.
void forgetNotifications();

} // namespace brimsound::doubles
