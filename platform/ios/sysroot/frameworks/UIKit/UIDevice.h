#pragma once

#import <Foundation/Foundation.h>

@interface UIDevice : NSObject
+ (UIDevice*)currentDevice;
@property (nonatomic, readonly, retain) NSString* systemVersion;
@end
