// The Darwin notify center in a test's hands.
#pragma once

#include <string>

namespace brimsound::doubles {

/// A post that is no effect of the pane's own.
void postFromAnotherProcess(const std::string& name);

/// Runs the main loop until every notification that was posted has been delivered.
void deliverNotifications();

/// Posts that were not delivered yet never will be.
void forgetNotifications();

} // namespace brimsound::doubles
