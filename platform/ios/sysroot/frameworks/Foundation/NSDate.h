#pragma once

#import <Foundation/NSObject.h>

@interface NSDate : NSObject <NSCopying>
@property (readonly) NSTimeInterval timeIntervalSinceReferenceDate;
+ (instancetype)date;
+ (instancetype)dateWithTimeIntervalSinceReferenceDate:(NSTimeInterval)seconds;
@end
