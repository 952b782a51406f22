#pragma once

#include <objc/objc.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;

struct _NSZone;
typedef struct _NSZone NSZone;

@class NSInvocation, NSMethodSignature, NSString, Protocol;

@protocol NSObject
- (BOOL)isEqual:(id)other;
@property (readonly) NSUInteger hash;
@property (readonly) Class superclass;
@property (readonly, copy) NSString* description;
- (Class)class;
- (instancetype)self;
- (id)performSelector:(SEL)selector;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (id)performSelector:(SEL)selector withObject:(id)first withObject:(id)second;
- (BOOL)isKindOfClass:(Class)class_;
- (BOOL)isMemberOfClass:(Class)class_;
- (BOOL)conformsToProtocol:(Protocol*)protocol;
- (BOOL)respondsToSelector:(SEL)selector;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
- (NSUInteger)retainCount;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (void)load;
+ (void)initialize;
+ (instancetype)new;
+ (instancetype)alloc;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
- (id)mutableCopy;
+ (Class)class;
+ (Class)superclass;
+ (BOOL)instancesRespondToSelector:(SEL)selector;
+ (BOOL)conformsToProtocol:(Protocol*)protocol;
+ (IMP)instanceMethodForSelector:(SEL)selector;
- (IMP)methodForSelector:(SEL)selector;
- (void)doesNotRecognizeSelector:(SEL)selector;
- (id)forwardingTargetForSelector:(SEL)selector;
- (void)forwardInvocation:(NSInvocation*)invocation;
- (NSMethodSignature*)methodSignatureForSelector:(SEL)selector;
+ (NSMethodSignature*)instanceMethodSignatureForSelector:(SEL)selector;
+ (BOOL)resolveInstanceMethod:(SEL)selector;
@end
