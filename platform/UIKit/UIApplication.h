#pragma once

#include <string>

namespace brimsound {

class UIApplication {
public:
    static UIApplication& sharedApplication();

    /// Whether an installed program can open URLs with this scheme. False for an invalid URL.
    bool canOpenURL(const std::string& url) const;
    /// Opens the URL in the program for its scheme. Returns false, without reporting anything, when there is
    /// no such program or it fails.
    bool openURL(const std::string& url);
};

} // namespace brimsound
