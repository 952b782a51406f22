// Control of shell commands.
#pragma once

namespace brimsound::doubles {

/// Whether commands are executed. They are always traced as "shell COMMAND".
void carryOutCommands(bool);

/// Whether no process can be started. Commands are traced all the same.
void refuseProcesses(bool);

} // namespace brimsound::doubles
