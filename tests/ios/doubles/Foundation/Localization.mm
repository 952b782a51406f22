// Strings tables as the device's Foundation reads them: property lists of any format. GNUstep's knows the
// oldest one only.
#import <Foundation/Foundation.h>
#import <objc/runtime.h>

namespace {

NSString* localizedString(NSBundle* self, SEL, NSString* key, NSString* value, NSString* table)
{
    NSString* path = [self pathForResource:[table length] > 0 ? table : @"Localizable" ofType:@"strings"];
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
    method_setImplementation(method, reinterpret_cast<IMP>(localizedString));
}

@end
