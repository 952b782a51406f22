// Telling text from mere bytes.
#pragma once

#include <string>
#include <string_view>

namespace brimsound::desktop {

/// Whether the bytes are UTF-8 without a NUL.
bool isText(std::string_view bytes);

/// The bytes as text: U+FFFD stands in for each byte that belongs to none.
std::string textFrom(std::string_view bytes);

} // namespace brimsound::desktop
