#pragma once

#import <Foundation/NSObject.h>

@interface NSIndexPath : NSObject <NSCopying>
@property (readonly) NSUInteger length;
+ (instancetype)indexPathWithIndexes:(const NSUInteger[])indexes length:(NSUInteger)length;
- (NSUInteger)indexAtPosition:(NSUInteger)position;
@end
