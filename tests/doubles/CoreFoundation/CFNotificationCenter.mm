#include "tests/doubles/CoreFoundation/NotificationCenter.h"
#include "tests/doubles/Trace.h"

#import <CoreFoundation/CoreFoundation.h>

#include <algorithm>
#include <deque>
#include <iterator>
#include <vector>

namespace {

struct Observer {
    const void* object;
    CFNotificationCallback callback;
    std::string name;
};

} // namespace

struct __CFNotificationCenter {
    std::vector<Observer> observers;
    /// Notifications that are posted but not delivered yet.
    std::deque<std::string> posted;
};

namespace {

__CFNotificationCenter center;

std::string textOf(CFStringRef name)
{
    return [(NSString*)name UTF8String];
}

void deliver(const std::string& name)
{
    // A copy, since a callback may add observers.
    std::vector<Observer> called;
    std::copy_if(center.observers.begin(), center.observers.end(), std::back_inserter(called),
        [&](const Observer& observer) { return observer.name == name; });
    if (called.empty())
        return;
    brimsound::doubles::record("deliver " + name);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const auto deliveredName = (CFStringRef)[NSString stringWithUTF8String:name.c_str()];
    for (const auto& observer : called)
        observer.callback(&center, const_cast<void*>(observer.object), deliveredName, nullptr, nullptr);
    [pool release];
}

} // namespace

namespace brimsound::doubles {

void postFromAnotherProcess(const std::string& name)
{
    center.posted.push_back(name);
}

void deliverNotifications()
{
    while (!center.posted.empty()) {
        const auto name = center.posted.front();
        center.posted.pop_front();
        deliver(name);
    }
}

void forgetNotifications()
{
    center.posted.clear();
}

} // namespace brimsound::doubles

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter()
{
    return &center;
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef to, const void* observer,
    CFNotificationCallback callBack, CFStringRef name, const void*, CFNotificationSuspensionBehavior)
{
    to->observers.push_back({ observer, callBack, textOf(name) });
}

void CFNotificationCenterPostNotification(
    CFNotificationCenterRef to, CFStringRef name, const void*, CFDictionaryRef, Boolean)
{
    brimsound::doubles::record("post " + textOf(name));
    to->posted.push_back(textOf(name));
}
