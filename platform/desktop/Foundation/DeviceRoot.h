// The location of device paths on this machine.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimsound::desktop {

/// The folder that device paths are relative to. By default `brimsound` in the user's data directory
/// ($XDG_DATA_HOME, otherwise ~/.local/share).
const std::filesystem::path& deviceRoot();

/// Sets the device root for the whole process; an empty one is the default. For the start of a program and
/// for tests.
void setDeviceRoot(std::filesystem::path);

/// Creates the folders that the pane expects on a device (those of the preferences file), accessible by the
/// user only. Throws std::filesystem::filesystem_error when one cannot be created.
void prepareDeviceRoot();

/// Converts a device path to a path on this machine. Paths in the installed bundle are resolved to the
/// resources next to the running program (../share/brimsound), all others are relative to the device root.
std::filesystem::path resolveDevicePath(std::string_view devicePath);

} // namespace brimsound::desktop
