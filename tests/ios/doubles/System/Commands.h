// Shell commands in a test's hands.
#pragma once

namespace brimsound::doubles {

/// Commands are always traced: "shell COMMAND". They are run only where this says so.
void carryOutCommands(bool);

} // namespace brimsound::doubles
