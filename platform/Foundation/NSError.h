// The error of a failed call.
#pragma once

#include <string>

namespace brimsound {

struct NSError {
    /// The kind of failure, for programs: for example "org.freedesktop.DBus.Error.NoReply".
    std::string domain;
    /// Distinguishes failures of the same kind.
    long code = 0;
    /// A description for people, without a line feed.
    std::string localizedDescription;

    bool operator==(const NSError&) const = default;
};

/// The error as "%@" prints it: Error Domain=DOMAIN Code=CODE "DESCRIPTION"
std::string descriptionOf(const NSError&);

} // namespace brimsound
