// The files of a mail on its way to a mail program.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace brimsound::desktop {

/// A file name without the folders before it, and without what no file can be called.
std::string plainFileName(const std::string& name);

/// A new folder, for the user alone, below the user's cache folder; it stays. Such folders of more than a day
/// ago are removed. Nothing when it cannot be made.
std::optional<std::filesystem::path> makeMailFolder();

/// Puts a file of that name, for the user alone, into a folder of its own in the folder, so that files of one
/// name do not meet. Its path; nothing when it cannot be written.
std::optional<std::filesystem::path> addFile(
    const std::filesystem::path& folder, const std::string& name, std::span<const std::byte>);

} // namespace brimsound::desktop
