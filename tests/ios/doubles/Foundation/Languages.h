// The user's languages in a test's hands.
#pragma once

#include <string>
#include <vector>

namespace brimsound::doubles {

/// What NSLocale gives: language codes ("en", "fr-CA"), the most preferred first.
void setPreferredLanguages(const std::vector<std::string>&);

} // namespace brimsound::doubles
