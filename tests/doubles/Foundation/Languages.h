// Control of the user's languages.
#pragma once

#include <string>
#include <vector>

namespace brimsound::doubles {

/// Sets what NSLocale returns: language codes ("en", "fr-CA"), the most preferred first.
void setPreferredLanguages(const std::vector<std::string>&);

} // namespace brimsound::doubles
