// Control of shell commands.
#pragma once

namespace brimsound::doubles {

/// Whether commands are executed. They are always traced as "shell COMMAND".
void carryOutCommands(bool);

} // namespace brimsound::doubles
