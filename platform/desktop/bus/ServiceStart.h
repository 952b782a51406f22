#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <functional>
#include <string>

namespace brimsound::desktop {

/// A request to the session bus to start the service that is installed for a name, as a message to that name
/// would start it. Destroying this object cancels the request, but not a start in progress.
class ServiceStart {
public:
    /// Calls `done` at most once: with true when the name has an owner; with false when no service is
    /// installed or enabled, or when it fails. This happens while SessionBus handles messages, or in this
    /// constructor when there is no bus. When the service hangs or the connection is lost, `done` may never
    /// be called. It must not destroy this object.
    ServiceStart(const std::string& busName, std::function<void(bool)> done);
    ServiceStart(const ServiceStart&) = delete;
    ServiceStart& operator=(const ServiceStart&) = delete;
    ~ServiceStart() = default;

private:
    bool ask(const std::string& busName);
    static int answered(sd_bus_message*, void* self, sd_bus_error*);

    const std::function<void(bool)> _done;
    BusSlot _call;
};

} // namespace brimsound::desktop
