#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSObject.h>

@interface NSLocale : NSObject <NSCopying>
@property (class, readonly, copy) NSArray<NSString*>* preferredLanguages;
+ (instancetype)currentLocale;
+ (instancetype)systemLocale;
+ (instancetype)localeWithLocaleIdentifier:(NSString*)identifier;
@end
