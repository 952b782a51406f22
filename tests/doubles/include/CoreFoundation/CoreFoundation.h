// The parts of Core Foundation that GNUstep's Foundation does not provide.
#pragma once

#import <Foundation/Foundation.h>

typedef unsigned char Boolean;
typedef signed long CFIndex;

/// The same objects as NSString and NSDictionary.
typedef const struct __CFString* CFStringRef;
typedef const struct __CFDictionary* CFDictionaryRef;

typedef struct __CFNotificationCenter* CFNotificationCenterRef;

typedef void (*CFNotificationCallback)(CFNotificationCenterRef center, void* observer, CFStringRef name,
    const void* object, CFDictionaryRef userInfo);

typedef enum CFNotificationSuspensionBehavior : CFIndex {
    CFNotificationSuspensionBehaviorDrop = 1,
    CFNotificationSuspensionBehaviorCoalesce = 2,
    CFNotificationSuspensionBehaviorHold = 3,
    CFNotificationSuspensionBehaviorDeliverImmediately = 4,
} CFNotificationSuspensionBehavior;

#ifdef __cplusplus
extern "C" {
#endif

extern double kCFCoreFoundationVersionNumber;

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);
void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void* observer,
    CFNotificationCallback callBack, CFStringRef name, const void* object,
    CFNotificationSuspensionBehavior suspensionBehavior);
void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFStringRef name,
    const void* object, CFDictionaryRef userInfo, Boolean deliverImmediately);

#ifdef __cplusplus
}
#endif
