#include "platform/CoreFoundation/CFNotificationCenter.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/PropertyListConversion.h"

#import <CoreFoundation/CoreFoundation.h>

#include <vector>

namespace brimsound {

namespace {

struct Observer {
    void* object;
    CFNotificationCallback callback;
};

::CFNotificationCenterRef nativeOf(CFNotificationCenterRef center)
{
    return reinterpret_cast<::CFNotificationCenterRef>(center);
}

::CFStringRef nativeName(const std::string& name)
{
    return (::CFStringRef)ios::nativeText(name);
}

/// The observer of the native registration is ours; it contains the product's observer.
void delivered(
    ::CFNotificationCenterRef center, void* observer, ::CFStringRef name, const void*, ::CFDictionaryRef)
{
    const auto* ours = static_cast<const Observer*>(observer);
    const auto text = ios::textOf((::NSString*)name);
    ours->callback(reinterpret_cast<CFNotificationCenterRef>(center), ours->object, text, nullptr, nullptr);
}

} // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter()
{
    return reinterpret_cast<CFNotificationCenterRef>(::CFNotificationCenterGetDarwinNotifyCenter());
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, void* observer,
    CFNotificationCallback callback, const std::string& name, const void* object,
    CFNotificationSuspensionBehavior behavior)
{
    // Never freed: observers cannot be removed.
    auto* ours = new Observer { observer, callback };
    ::CFNotificationCenterAddObserver(nativeOf(center), ours, delivered, nativeName(name), object,
        static_cast<::CFNotificationSuspensionBehavior>(behavior));
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef center, const std::string& name,
    const void* object, const PropertyList::Dictionary* userInfo, bool deliverImmediately)
{
    ::CFNotificationCenterPostNotification(nativeOf(center), nativeName(name), object,
        userInfo ? (::CFDictionaryRef)ios::nativeDictionary(*userInfo) : NULL, deliverImmediately);
}

} // namespace brimsound
