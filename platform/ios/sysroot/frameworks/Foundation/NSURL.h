#pragma once

#import <Foundation/NSObject.h>

@interface NSURL : NSObject <NSCopying>
@property (readonly, copy) NSString* absoluteString;
@property (readonly, copy) NSString* scheme;
+ (instancetype)URLWithString:(NSString*)text;
+ (NSURL*)fileURLWithPath:(NSString*)path;
@end
