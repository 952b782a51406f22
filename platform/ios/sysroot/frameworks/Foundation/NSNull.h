// A value that stands for none.
#pragma once

#import <Foundation/NSObject.h>

@interface NSNull : NSObject <NSCopying>
+ (NSNull*)null;
@end
