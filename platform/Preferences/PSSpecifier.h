#pragma once

#include "platform/Foundation/NSObject.h"
#include "platform/Foundation/PropertyList.h"

#include <string>
#include <string_view>

namespace brimsound {

/// One row or group of a settings pane, with the properties from its specifier plist.
class PSSpecifier : public NSObject {
public:
    /// The get, set and action selectors are sent to the target, which is not retained.
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
