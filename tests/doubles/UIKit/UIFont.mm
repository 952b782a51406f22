#include "tests/doubles/UIKit/Conversion.h"

namespace {

/// The name of the text font in iOS 9.
NSString* const systemFontName = @".SFUIText-Regular";

bool isInstalled(NSString* name)
{
    return [name isEqualToString:systemFontName] || [name isEqualToString:@"Helvetica"] ||
        [name hasPrefix:@"Helvetica-"] || [name isEqualToString:@"HelveticaNeue"] ||
        [name hasPrefix:@"HelveticaNeue-"];
}

} // namespace

@implementation UIFont

@synthesize fontName = _fontName;
@synthesize pointSize = _pointSize;

+ (UIFont*)systemFontOfSize:(CGFloat)size
{
    return [self fontWithName:systemFontName size:size];
}

+ (UIFont*)fontWithName:(NSString*)name size:(CGFloat)size
{
    if (!isInstalled(name))
        return nil;
    UIFont* const font = [[[self alloc] init] autorelease];
    font->_fontName = [name copy];
    font->_pointSize = size;
    return font;
}

- (void)dealloc
{
    [_fontName release];
    [super dealloc];
}

- (UIFont*)fontWithSize:(CGFloat)size
{
    return [UIFont fontWithName:_fontName size:size];
}

@end

namespace brimsound::doubles {

std::optional<toolkit::Font> toToolkit(UIFont* font)
{
    return font ? std::optional(toolkit::Font { toToolkit([font fontName]), [font pointSize] })
                : std::nullopt;
}

UIFont* toPlatform(const std::optional<toolkit::Font>& font)
{
    if (!font)
        return nil;
    return font->name.empty() ? [UIFont systemFontOfSize:font->size]
                              : [UIFont fontWithName:toPlatform(font->name) size:font->size];
}

} // namespace brimsound::doubles
