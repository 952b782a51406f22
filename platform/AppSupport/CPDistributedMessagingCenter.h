// Messages between processes, addressed to a center by name.
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
    /// Looks a center up. It is made whether or not a server answers to the name: a missing server shows in
    /// the first send.
    static RetainPtr<CPDistributedMessagingCenter> centerNamed(const std::string& name);

    /// Sends a message and waits for the reply (on the desktop one second at most). On failure the result is
    /// empty and `error` says why; a success leaves `error` as it was.
    PropertyList::Dictionary sendMessageAndReceiveReplyName(
        const std::string& name, const PropertyList::Dictionary& userInfo, std::optional<NSError>& error);

protected:
    explicit CPDistributedMessagingCenter(Peer*);
};

} // namespace brimsound
