// What went wrong in a call that reports failures.
#pragma once

#include <string>

namespace brimsound {

struct NSError {
    /// Names the failure's kind for programs, for example "org.freedesktop.DBus.Error.NoReply".
    std::string domain;
    /// Tells failures of that kind apart.
    long code = 0;
    /// Tells it to a person, without a line feed.
    std::string localizedDescription;

    bool operator==(const NSError&) const = default;
};

/// The error as "%@" prints it: Error Domain=DOMAIN Code=CODE "DESCRIPTION"
std::string descriptionOf(const NSError&);

} // namespace brimsound
