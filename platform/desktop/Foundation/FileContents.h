// Reading and writing whole files, by their paths on this machine.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace brimsound::desktop {

/// The bytes of a regular file; nothing when it is not a regular file, cannot be read, or is longer than
/// `limit`. Never blocks on a pipe or a device.
std::optional<std::vector<std::byte>> readRegularFile(const std::filesystem::path&, std::size_t limit);

/// Overwrites a regular file in place, or creates it, accessible by the user only. Reserves the disk space
/// first. A full disk, a full quota or a size limit therefore leaves the old file unchanged. Returns false on
/// failure. The file is partly written only after a disk error, or on a file system that writes changed
/// blocks to a new place and finds no space for them.
bool overwriteFile(const std::filesystem::path&, std::span<const std::byte>);

} // namespace brimsound::desktop
