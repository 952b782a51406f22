#import "tests/doubles/Foundation/Languages.h"
#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

namespace {

NSMutableArray* languages()
{
    static NSMutableArray* all = [[NSMutableArray alloc] initWithObjects:@"en", nil];
    return all;
}

/// GNUstep's implementation always adds English.
NSArray* preferredLanguages(id, SEL)
{
    return languages();
}

} // namespace

@interface LanguageChoice : NSObject
@end

@implementation LanguageChoice

+ (void)load
{
    const Method method = class_getClassMethod([NSLocale class], @selector(preferredLanguages));
    brimsound::doubles::replaceMethod(method, preferredLanguages);
}

@end

namespace brimsound::doubles {

void setPreferredLanguages(const std::vector<std::string>& codes)
{
    [languages() removeAllObjects];
    for (const auto& code : codes)
        [languages() addObject:[NSString stringWithUTF8String:code.c_str()]];
}

} // namespace brimsound::doubles
