#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSObject.h>

@interface NSError : NSObject <NSCopying>
@property (readonly, copy) NSString* domain;
@property (readonly) NSInteger code;
@property (readonly, copy) NSDictionary* userInfo;
@property (readonly, copy) NSString* localizedDescription;
+ (instancetype)errorWithDomain:(NSString*)domain code:(NSInteger)code userInfo:(NSDictionary*)userInfo;
@end

extern "C" NSString* const NSLocalizedDescriptionKey;
