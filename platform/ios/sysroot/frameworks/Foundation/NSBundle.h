#pragma once

#import <Foundation/NSObject.h>

@interface NSBundle : NSObject
@property (readonly, copy) NSString* bundlePath;
@property (readonly, copy) NSString* resourcePath;
+ (NSBundle*)mainBundle;
+ (NSBundle*)bundleForClass:(Class)class_;
+ (instancetype)bundleWithPath:(NSString*)path;
- (instancetype)initWithPath:(NSString*)path;
- (NSString*)pathForResource:(NSString*)name ofType:(NSString*)extension;
- (NSString*)localizedStringForKey:(NSString*)key value:(NSString*)value table:(NSString*)table;
@end
