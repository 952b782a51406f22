#pragma once

#import <CoreFoundation/CoreFoundation.h>
#import <objc/NSObject.h>

typedef double NSTimeInterval;

struct _NSRange {
    NSUInteger location;
    NSUInteger length;
};
typedef struct _NSRange NSRange;

static const NSInteger NSNotFound = INTPTR_MAX;

@class NSString;

@protocol NSCopying
- (id)copyWithZone:(NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(NSZone*)zone;
@end

typedef struct {
    unsigned long state;
    __unsafe_unretained id* itemsPtr;
    unsigned long* mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(__unsafe_unretained id[])buffer
                                    count:(NSUInteger)length;
@end

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector withObject:(id)argument afterDelay:(NSTimeInterval)delay;
+ (void)cancelPreviousPerformRequestsWithTarget:(id)target;
@end

extern "C" {
void NSLog(NSString* format, ...) __attribute__((format(__NSString__, 1, 2)));
NSString* NSStringFromSelector(SEL);
SEL NSSelectorFromString(NSString*);
NSString* NSStringFromClass(Class);
Class NSClassFromString(NSString*);
}
