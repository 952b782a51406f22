#pragma once

#include <string>

namespace brimsound {

/// The bundle's text for the key in the user's language; the default when there is none.
std::string localized(const std::string& key, const std::string& defaultText);

} // namespace brimsound
