// The Darwin notify center: notifications without contents that reach every process of the user.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <string>
#include <string_view>

namespace brimsound {

class CFNotificationCenter;
using CFNotificationCenterRef = CFNotificationCenter*;

/// Called on the main loop for each delivery. Darwin notifications carry neither object nor user info: both
/// are null.
using CFNotificationCallback = void (*)(CFNotificationCenterRef, void* observer, std::string_view name,
    const void* object, const PropertyList::Dictionary* userInfo);

/// What happens to deliveries while a process is suspended; the Darwin center ignores it.
using CFNotificationSuspensionBehavior = long;

/// The center, one per process, never released.
CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter();

/// From now on calls the callback for every post of that name by any process, this one included. A second
/// registration gives a second call. `observer` is handed back as it is and not retained.
void CFNotificationCenterAddObserver(CFNotificationCenterRef, void* observer, CFNotificationCallback,
    const std::string& name, const void* object, CFNotificationSuspensionBehavior);

/// Posts to every process. Returns before anything is delivered: this process's own observers hear of it on
/// the main loop. A post that cannot be made is dropped silently.
void CFNotificationCenterPostNotification(CFNotificationCenterRef, const std::string& name,
    const void* object, const PropertyList::Dictionary* userInfo, bool deliverImmediately);

} // namespace brimsound
