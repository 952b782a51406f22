// The files of a mail that a mail program opens.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace brimsound::desktop {

/// A file name without folders and without characters that are not allowed in file names.
std::string plainFileName(const std::string& name);

/// Creates a private folder in the user's cache folder. It is not removed at exit; earlier ones are removed
/// once they are more than a day old. Nothing when it cannot be created.
std::optional<std::filesystem::path> makeMailFolder();

/// Writes a private file of that name into a new subfolder of the folder, so that files may have the same
/// name. Returns its path; nothing when it cannot be written.
std::optional<std::filesystem::path> addFile(
    const std::filesystem::path& folder, const std::string& name, std::span<const std::byte>);

} // namespace brimsound::desktop
