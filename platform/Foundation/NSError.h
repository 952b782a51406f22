// What went wrong in a call that reports failures.
#pragma once

#include <string>

namespace brimsound {

struct NSError {
    /// Names the failure for programs, for example "org.freedesktop.DBus.Error.NoReply".
    std::string domain;
    /// Tells it to a person, without a line feed.
    std::string localizedDescription;

    bool operator==(const NSError&) const = default;
};

} // namespace brimsound
