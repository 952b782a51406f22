// Texts in the user's language.
#pragma once

#include <string>

namespace brimsound {

/// The bundle's text for the key, or else the default.
std::string localized(const std::string& key, const std::string& defaultText);

} // namespace brimsound
