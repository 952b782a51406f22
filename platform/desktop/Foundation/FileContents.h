// Whole files, on this machine's paths.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace brimsound::desktop {

/// The bytes of a regular file; nothing when it is none, cannot be read, or is longer than `limit`. Never
/// waits for the other end of a pipe or a device.
std::optional<std::vector<std::byte>> readRegularFile(const std::filesystem::path&, std::size_t limit);

/// Overwrites a regular file in place, or makes it, for the user alone. Room for all of it is reserved first,
/// so that a full disk or quota, or a file that would be too large, leaves the old file as it was. False when
/// that failed: halfway only for a disk that fails, or one that writes changed blocks elsewhere and finds no
/// room there.
bool overwriteFile(const std::filesystem::path&, std::span<const std::byte>);

/// Puts a new file, for the user alone, in the place of the one of that name: the old one or the new one is
/// there whole at any time. False when that failed.
bool replaceFile(const std::filesystem::path&, std::span<const std::byte>);

} // namespace brimsound::desktop
