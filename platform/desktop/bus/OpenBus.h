#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <chrono>

namespace brimsound::desktop {

/// How long to wait for the bus: to accept a connection, and to answer a call without a timeout of its own.
inline constexpr std::chrono::microseconds longestBusWait = std::chrono::seconds(1);

/// A connection that the session bus has accepted; null when there is no bus or it did not respond in time.
BusConnection openSessionBus();

} // namespace brimsound::desktop
