#pragma once

#import <Foundation/NSObject.h>

@class NSError;

typedef NSUInteger NSDataReadingOptions;
typedef NSUInteger NSDataWritingOptions;
enum : NSDataWritingOptions {
    NSDataWritingAtomic = 1,
};

@interface NSData : NSObject <NSCopying, NSMutableCopying>
@property (readonly) NSUInteger length;
@property (readonly) const void* bytes;
+ (instancetype)data;
+ (instancetype)dataWithBytes:(const void*)bytes length:(NSUInteger)length;
+ (instancetype)dataWithBytesNoCopy:(void*)bytes length:(NSUInteger)length freeWhenDone:(BOOL)free;
+ (instancetype)dataWithContentsOfFile:(NSString*)path;
+ (instancetype)dataWithContentsOfFile:(NSString*)path
                               options:(NSDataReadingOptions)options
                                 error:(NSError**)error;
- (BOOL)writeToFile:(NSString*)path atomically:(BOOL)atomically;
- (BOOL)writeToFile:(NSString*)path options:(NSDataWritingOptions)options error:(NSError**)error;
@end
