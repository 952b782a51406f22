// Where device paths lie on this machine.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimsound::desktop {

/// The folder under which device paths resolve: `brimsound` in the user's data directory ($XDG_DATA_HOME,
/// else ~/.local/share) until another is set.
const std::filesystem::path& deviceRoot();

/// Sets the device root. Process-wide; for the start of a program and for tests.
void setDeviceRoot(std::filesystem::path);

/// Makes the folders of the device that the pane expects to find (those of the preferences file), readable by
/// the user alone. Throws std::filesystem::filesystem_error when one cannot be made.
void prepareDeviceRoot();

/// The place of a device path on this machine. The installed bundle's own path leads to its resources beside
/// the running program (../share/brimsound), every other path to the device root.
std::filesystem::path resolveDevicePath(std::string_view devicePath);

} // namespace brimsound::desktop
