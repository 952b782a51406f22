#pragma once

#include <string>
#include <string_view>

namespace brimsound::desktop {

/// Whether the bytes are UTF-8 without a NUL.
bool isText(std::string_view bytes);

/// The bytes as text, with U+FFFD for each invalid byte.
std::string textFrom(std::string_view bytes);

} // namespace brimsound::desktop
