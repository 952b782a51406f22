#include "tests/doubles/CoreFoundation/NotificationCenter.h"
#include "tests/doubles/Trace.h"

#import <CoreFoundation/CoreFoundation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::doubles {
namespace {

using testing::ElementsAre;

void countInto(CFNotificationCenterRef, void* observer, CFStringRef, const void*, CFDictionaryRef)
{
    ++*static_cast<int*>(observer);
}

TEST(ANotification, IsDeliveredAfterThePostToAllObserversOfItsName)
{
    static int heard;
    const auto center = CFNotificationCenterGetDarwinNotifyCenter();
    CFNotificationCenterAddObserver(center, &heard, countInto, (CFStringRef) @"brimsound.tests.observed",
        nullptr, CFNotificationSuspensionBehaviorDeliverImmediately);
    takeTrace();

    CFNotificationCenterPostNotification(
        center, (CFStringRef) @"brimsound.tests.observed", nullptr, nullptr, YES);
    postFromAnotherProcess("brimsound.tests.observed");
    postFromAnotherProcess("brimsound.tests.other");
    EXPECT_EQ(heard, 0);
    deliverNotifications();
    EXPECT_EQ(heard, 2);
    EXPECT_THAT(takeTrace(),
        ElementsAre("post brimsound.tests.observed", "deliver brimsound.tests.observed",
            "deliver brimsound.tests.observed"));

    postFromAnotherProcess("brimsound.tests.observed");
    forgetNotifications();
    deliverNotifications();
    EXPECT_EQ(heard, 2);
}

} // namespace
} // namespace brimsound::doubles
