// Messages between processes. A message is addressed to a center by name.
#pragma once

#include "platform/Foundation/NSError.h"
#include "platform/Foundation/NSObject.h"
#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>

namespace brimsound {

/// The client's side of a named messaging center.
class CPDistributedMessagingCenter : public NSObject {
public:
    /// Returns a center for that name, whether or not a server has registered it. The first send to a missing
    /// server fails.
    static RetainPtr<CPDistributedMessagingCenter> centerNamed(const std::string& name);

    /// Sends a message and waits for the reply (on the desktop for one second at most). On failure the result
    /// is empty and `error` is set; on success `error` is unchanged.
    PropertyList::Dictionary sendMessageAndReceiveReplyName(
        const std::string& name, const PropertyList::Dictionary& userInfo, std::optional<NSError>& error);

protected:
    explicit CPDistributedMessagingCenter(Peer*);
};

} // namespace brimsound
