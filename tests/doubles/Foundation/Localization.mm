// Reads strings tables as the device's Foundation does: property lists of any format, in the first preferred
// language that has one. GNUstep supports only the oldest format, and has its own list of languages.
#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

namespace {

NSString* pathOfTable(NSBundle* bundle, NSString* table)
{
    for (NSString* language in [NSLocale preferredLanguages]) {
        NSString* path = [bundle pathForResource:table
                                          ofType:@"strings"
                                     inDirectory:nil
                                 forLocalization:language];
        if (path)
            return path;
    }
    return [bundle pathForResource:table ofType:@"strings"];
}

NSString* localizedString(NSBundle* self, SEL, NSString* key, NSString* value, NSString* table)
{
    NSString* path = pathOfTable(self, [table length] > 0 ? table : @"Localizable");
    NSData* file = path ? [NSData dataWithContentsOfFile:path] : nil;
    NSDictionary* strings = file ? [NSPropertyListSerialization propertyListWithData:file
                                                                             options:NSPropertyListImmutable
                                                                              format:nullptr
                                                                               error:nullptr]
                                 : nil;
    NSString* text = [strings objectForKey:key];
    if (text)
        return text;
    return [value length] > 0 ? value : key;
}

} // namespace

@interface Localization : NSObject
@end

@implementation Localization

+ (void)load
{
    const Method method
        = class_getInstanceMethod([NSBundle class], @selector(localizedStringForKey:value:table:));
    brimsound::doubles::replaceMethod(method, localizedString);
}

@end
