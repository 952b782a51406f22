// The fuzz test for the bytes of a preferences file.
#pragma once

#include <cstddef>
#include <span>

namespace brimsound::tests {

/// Reads the bytes as the pane reads its file, gets the values that it shows, makes the changes of releasing
/// a slider, and writes the file. Throws std::logic_error when the written file is read back differently.
void tryPreferencesFile(std::span<const std::byte> bytes);

} // namespace brimsound::tests
