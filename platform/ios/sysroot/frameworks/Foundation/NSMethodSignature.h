#pragma once

#import <Foundation/NSObject.h>

@interface NSMethodSignature : NSObject
@property (readonly) NSUInteger numberOfArguments;
@property (readonly) const char* methodReturnType;
@property (readonly) NSUInteger methodReturnLength;
+ (NSMethodSignature*)signatureWithObjCTypes:(const char*)types;
- (const char*)getArgumentTypeAtIndex:(NSUInteger)index;
@end
