// What one row or group of a settings pane is made from.
#pragma once

#include "platform/Foundation/NSObject.h"
#include "platform/Foundation/PropertyList.h"

#include <string>
#include <string_view>

namespace brimsound {

/// The properties of a row or a group as its specifier plist gives them.
class PSSpecifier : public NSObject {
public:
    /// The target, which the get, set and action selectors are sent to, is not retained.
    PSSpecifier(const std::string& name, NSObject& target, PropertyList::Dictionary properties);

    /// The localized label.
    std::string name() const;
    NSObject& target() const;

    /// The property under the key ("key", "default", "negate" …); null when there is none.
    PropertyList propertyForKey(std::string_view key) const;

protected:
    explicit PSSpecifier(Peer*);
};

} // namespace brimsound
