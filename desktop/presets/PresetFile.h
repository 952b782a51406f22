#pragma once

#include <filesystem>
#include <string_view>

namespace brimsound::presets {

enum class Existing { Kept, Replaced };

/// Writes a file. Throws std::runtime_error when it cannot be written, or exists and is to be kept; an
/// existing file is then unchanged.
void writePresetFile(const std::filesystem::path&, std::string_view contents, Existing);

} // namespace brimsound::presets
