// The Darwin notify center: notifications without contents that reach every process of the user.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <string>
#include <string_view>

namespace brimsound {

class CFNotificationCenter;
using CFNotificationCenterRef = CFNotificationCenter*;

/// Called on the main loop for each delivery. Darwin notifications carry neither an object nor user info:
/// both are null.
using CFNotificationCallback = void (*)(CFNotificationCenterRef, void* observer, std::string_view name,
    const void* object, const PropertyList::Dictionary* userInfo);

/// How deliveries are handled while a process is suspended. The Darwin center ignores it.
using CFNotificationSuspensionBehavior = long;

/// The center: one per process, never released.
CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter();

/// Calls the callback for every later post of that name by any process, including this one. A second
/// registration causes a second call. `observer` is passed to the callback as it is and not retained.
void CFNotificationCenterAddObserver(CFNotificationCenterRef, void* observer, CFNotificationCallback,
    const std::string& name, const void* object, CFNotificationSuspensionBehavior);

/// Posts to every process. Returns before anything is delivered; this process's own observers are called on
/// the main loop. A failure is not reported.
void CFNotificationCenterPostNotification(CFNotificationCenterRef, const std::string& name,
    const void* object, const PropertyList::Dictionary* userInfo, bool deliverImmediately);

} // namespace brimsound
