// Reaching the session bus.
#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <chrono>

namespace brimsound::desktop {

/// How long the bus is waited for: to take a connection, and to answer a call that names no other time.
inline constexpr std::chrono::microseconds longestBusWait = std::chrono::seconds(1);

/// A connection that the session bus has taken; null when there is no bus or when it did not answer in time.
BusConnection openSessionBus();

} // namespace brimsound::desktop
