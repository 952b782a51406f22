#pragma once

#include <string>
#include <vector>

namespace brimsound {

/// The user's preferred languages as language codes ("en", "fr-CA"), the most preferred first; may be empty.
std::vector<std::string> preferredLanguages();

} // namespace brimsound
