#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSObject.h>

@interface NSSet : NSObject <NSCopying, NSMutableCopying, NSFastEnumeration>
@property (readonly) NSUInteger count;
+ (instancetype)setWithArray:(NSArray*)elements;
@end
