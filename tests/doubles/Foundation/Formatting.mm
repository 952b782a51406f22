// Formats text as the device's Foundation does: with a decimal point in every language.
#import "tests/doubles/objc/replaceMethod.h"

#import <Foundation/Foundation.h>

#include <clocale>
#include <cstdarg>

namespace {

/// Selects the C locale for this thread while it exists.
class NoLanguage {
public:
    NoLanguage() = default;
    NoLanguage(const NoLanguage&) = delete;
    NoLanguage& operator=(const NoLanguage&) = delete;
    ~NoLanguage()
    {
        uselocale(_before);
        freelocale(_none);
    }

private:
    locale_t _none = newlocale(LC_ALL_MASK, "C", nullptr);
    locale_t _before = uselocale(_none);
};

NSString* stringWithFormat(id self, SEL, NSString* format, ...)
{
    const NoLanguage language;
    va_list arguments;
    va_start(arguments, format);
    NSString* text = [[[self alloc] initWithFormat:format arguments:arguments] autorelease];
    va_end(arguments);
    return text;
}

} // namespace

@interface Formatting : NSObject
@end

@implementation Formatting

+ (void)load
{
    const Method method = class_getClassMethod([NSString class], @selector(stringWithFormat:));
    brimsound::doubles::replaceMethod(method, stringWithFormat);
}

@end
