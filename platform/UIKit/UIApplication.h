// The running application.
#pragma once

#include <string>

namespace brimsound {

class UIApplication {
public:
    static UIApplication& sharedApplication();

    /// Whether anything is there to open URLs with this one's scheme. False for what is no URL.
    bool canOpenURL(const std::string& url) const;
    /// Hands the URL to what opens its scheme. False, with nothing reported, when there is nothing or it
    /// failed.
    bool openURL(const std::string& url);
};

} // namespace brimsound
