// Reads and writes property lists as the device's Foundation does, where GNUstep's behavior differs.
#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

namespace {

using Read = id (*)(id, SEL, NSData*, NSPropertyListReadOptions, NSPropertyListFormat*, NSError**);
using Write = NSData* (*)(id, SEL, id, NSPropertyListFormat, NSPropertyListWriteOptions, NSError**);

Read originalRead = nullptr;
Write originalWrite = nullptr;

/// Returns nil for invalid bytes. GNUstep's method raises an exception.
id readList(id self, SEL selector, NSData* data, NSPropertyListReadOptions options,
    NSPropertyListFormat* format, NSError** error)
{
    @try {
        return originalRead(self, selector, data, options, format, error);
    } @catch (NSException*) {
        return nil;
    }
}

/// Text in XML is UTF-8. GNUstep writes characters outside the basic plane as "\UD83C\UDFB8".
NSString* unescaped(NSString* xml)
{
    NSMutableString* text = [NSMutableString string];
    NSScanner* scanner = [NSScanner scannerWithString:xml];
    [scanner setCharactersToBeSkipped:nil];
    while (![scanner isAtEnd]) {
        NSString* part = nil;
        if ([scanner scanUpToString:@"\\U" intoString:&part])
            [text appendString:part];
        if (![scanner scanString:@"\\U" intoString:nullptr])
            continue;
        NSString* digits = [xml substringWithRange:NSMakeRange([scanner scanLocation], 4)];
        unsigned int unit = 0;
        [[NSScanner scannerWithString:digits] scanHexInt:&unit];
        [text appendFormat:@"%C", static_cast<unichar>(unit)];
        [scanner setScanLocation:[scanner scanLocation] + 4];
    }
    return text;
}

NSData* writeList(id self, SEL selector, id list, NSPropertyListFormat format,
    NSPropertyListWriteOptions options, NSError** error)
{
    NSData* data = originalWrite(self, selector, list, format, options, error);
    if (!data || format != NSPropertyListXMLFormat_v1_0)
        return data;
    NSString* xml = [[[NSString alloc] initWithData:data encoding:NSUTF8StringEncoding] autorelease];
    return [unescaped(xml) dataUsingEncoding:NSUTF8StringEncoding];
}

/// GNUstep's method accepts an NSNull.
BOOL isValid(id self, SEL selector, id list, NSPropertyListFormat format)
{
    if ([list isKindOfClass:[NSArray class]]) {
        for (id element in list) {
            if (!isValid(self, selector, element, format))
                return NO;
        }
        return YES;
    }
    if ([list isKindOfClass:[NSDictionary class]]) {
        for (id key in list) {
            if (![key isKindOfClass:[NSString class]]
                || !isValid(self, selector, [list objectForKey:key], format))
                return NO;
        }
        return YES;
    }
    return [list isKindOfClass:[NSString class]] || [list isKindOfClass:[NSNumber class]] ||
        [list isKindOfClass:[NSData class]] || [list isKindOfClass:[NSDate class]];
}

template <typename Function> Function replace(Class native, SEL selector, Function function)
{
    return brimsound::doubles::replaceMethod(class_getClassMethod(native, selector), function);
}

} // namespace

@interface PropertyLists : NSObject
@end

@implementation PropertyLists

+ (void)load
{
    Class const serialization = [NSPropertyListSerialization class];
    originalRead = replace(serialization, @selector(propertyListWithData:options:format:error:), readList);
    originalWrite = replace(serialization, @selector(dataWithPropertyList:format:options:error:), writeList);
    replace(serialization, @selector(propertyList:isValidForFormat:), isValid);
}

@end
