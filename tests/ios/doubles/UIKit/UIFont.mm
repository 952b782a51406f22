#import <UIKit/UIKit.h>

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

- (NSString*)fontName
{
    return _fontName;
}

- (CGFloat)pointSize
{
    return _pointSize;
}

- (id)copyWithZone:(NSZone*)zone
{
    // It never changes.
    return [self retain];
}

@end
