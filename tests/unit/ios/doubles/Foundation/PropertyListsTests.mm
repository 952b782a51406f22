#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

namespace {

id reread(id list, NSPropertyListFormat format)
{
    NSData* data = [NSPropertyListSerialization dataWithPropertyList:list
                                                              format:format
                                                             options:0
                                                               error:nullptr];
    return [NSPropertyListSerialization propertyListWithData:data options:0 format:nullptr error:nullptr];
}

TEST(APropertyList, IsNothingForInvalidBytes)
{
    for (NSString *text in [NSArray arrayWithObjects:@"bplist00 and more", @"<?xml", @"{", nil]) {
        EXPECT_FALSE(
            [NSPropertyListSerialization propertyListWithData:[text dataUsingEncoding:NSUTF8StringEncoding]
                                                      options:0
                                                       format:nullptr
                                                        error:nullptr])
            << [text UTF8String];
    }
}

TEST(APropertyList, KeepsEveryText)
{
    NSDictionary* list = [NSDictionary dictionaryWithObject:@"\\ é < \U0001F3B8\U0001F50A"
                                                     forKey:@"\U0001F3B8"];
    EXPECT_TRUE([reread(list, NSPropertyListXMLFormat_v1_0) isEqual:list]);
    EXPECT_TRUE([reread(list, NSPropertyListBinaryFormat_v1_0) isEqual:list]);
}

TEST(APropertyList, CannotContainNull)
{
    const auto isValid = [](id list) {
        return [NSPropertyListSerialization propertyList:list
                                        isValidForFormat:NSPropertyListBinaryFormat_v1_0];
    };
    EXPECT_TRUE(isValid([NSArray arrayWithObject:@"text"]));
    EXPECT_FALSE(isValid([NSArray arrayWithObject:[NSNull null]]));
    EXPECT_FALSE(isValid([NSDictionary dictionaryWithObject:[NSNull null] forKey:@"key"]));
}

TEST(AStringsTable, MayBeInXML)
{
    NSBundle* bundle = [NSBundle mainBundle];
    EXPECT_TRUE([[bundle localizedStringForKey:@"CANCEL" value:@"none"
                                         table:@"BrimsoundSettings"] isEqual:@"Cancel"]);
    EXPECT_TRUE([[bundle localizedStringForKey:@"NOTHING" value:@"none"
                                         table:@"BrimsoundSettings"] isEqual:@"none"]);
    EXPECT_TRUE([[bundle localizedStringForKey:@"NOTHING" value:nil table:@"Nothing"] isEqual:@"NOTHING"]);
}

} // namespace
