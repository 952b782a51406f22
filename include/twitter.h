// The addresses of the product's profile.
#pragma once

#include "include/Configuration.h"

#include <array>

namespace brimsound {

/// The profile's address in each supported client app, then on the web. The first one that can be opened is
/// used.
inline constexpr std::array TWITTER_URL_SCHEMES {
    "twitterrific:///profile?screen_name=BrimsoundHQ",
    "tweetbot:///user_profile/BrimsoundHQ",
    "twitter://user?screen_name=BrimsoundHQ",
    "https://" BRIMSOUND_PROFILE_HOST "/BrimsoundHQ",
    "http://" BRIMSOUND_PROFILE_HOST "/BrimsoundHQ",
};

} // namespace brimsound
