#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound {

using NSData = std::vector<std::byte>;

/// All bytes of the file at a device path; nothing when it cannot be read.
std::optional<NSData> dataWithContentsOfFile(const std::string& path);

/// Appends the text's bytes in UTF-8.
void appendText(NSData&, std::string_view text);

} // namespace brimsound
