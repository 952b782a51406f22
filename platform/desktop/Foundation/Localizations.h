#pragma once

#include "platform/Foundation/NSBundle.h"

#include <string>
#include <vector>

namespace brimsound::desktop {

/// The names of the localizations that suit the languages, the best first: for "de-AT" and "no" these are
/// "de-AT", "de", "no" and "nb".
std::vector<std::string> localizationsFor(const std::vector<std::string>& languages);

/// The localization of the bundle that suits the user's preferred languages best; "en" when none does.
std::string preferredLocalization(const NSBundle&);

} // namespace brimsound::desktop
