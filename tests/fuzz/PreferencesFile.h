// What is tried on the bytes of a preferences file.
#pragma once

#include <cstddef>
#include <span>

namespace brimsound::tests {

/// Reads the bytes as the pane reads its file, takes from them what it shows, changes what letting go of a
/// slider changes, and writes. Throws std::logic_error when what is written does not read alike.
void tryPreferencesFile(std::span<const std::byte> bytes);

} // namespace brimsound::tests
