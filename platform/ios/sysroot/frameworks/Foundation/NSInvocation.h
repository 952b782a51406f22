#pragma once

#import <Foundation/NSMethodSignature.h>
#import <Foundation/NSObject.h>

@interface NSInvocation : NSObject
@property (readonly, retain) NSMethodSignature* methodSignature;
@property (assign) id target;
@property SEL selector;
+ (NSInvocation*)invocationWithMethodSignature:(NSMethodSignature*)signature;
- (void)getArgument:(void*)location atIndex:(NSInteger)index;
- (void)setArgument:(void*)location atIndex:(NSInteger)index;
- (void)getReturnValue:(void*)location;
- (void)setReturnValue:(void*)location;
- (void)retainArguments;
- (void)invoke;
- (void)invokeWithTarget:(id)target;
@end
