// Where the product's profile is found.
#pragma once

#include "include/Configuration.h"

#include <array>

namespace brimsound {

/// The profile in the client apps that know it, then on the web. The first one that can be opened is the one
/// to open.
inline constexpr std::array TWITTER_URL_SCHEMES {
    "twitterrific:///profile?screen_name=BrimsoundHQ",
    "tweetbot:///user_profile/BrimsoundHQ",
    "twitter://user?screen_name=BrimsoundHQ",
    "https://" BRIMSOUND_PROFILE_HOST "/BrimsoundHQ",
    "http://" BRIMSOUND_PROFILE_HOST "/BrimsoundHQ",
};

} // namespace brimsound
