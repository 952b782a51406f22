#pragma once

#import <Foundation/NSData.h>
#import <Foundation/NSObject.h>

typedef NSUInteger NSPropertyListFormat;
enum : NSPropertyListFormat {
    NSPropertyListOpenStepFormat = 1,
    NSPropertyListXMLFormat_v1_0 = 100,
    NSPropertyListBinaryFormat_v1_0 = 200,
};

typedef NSUInteger NSPropertyListReadOptions;
typedef NSUInteger NSPropertyListWriteOptions;
typedef NSUInteger NSPropertyListMutabilityOptions;
enum : NSPropertyListMutabilityOptions {
    NSPropertyListImmutable = 0,
    NSPropertyListMutableContainers = 1,
    NSPropertyListMutableContainersAndLeaves = 2,
};

@interface NSPropertyListSerialization : NSObject
+ (NSData*)dataWithPropertyList:(id)propertyList
                         format:(NSPropertyListFormat)format
                        options:(NSPropertyListWriteOptions)options
                          error:(NSError**)error;
+ (id)propertyListWithData:(NSData*)data
                   options:(NSPropertyListReadOptions)options
                    format:(NSPropertyListFormat*)format
                     error:(NSError**)error;
+ (BOOL)propertyList:(id)propertyList isValidForFormat:(NSPropertyListFormat)format;
@end
