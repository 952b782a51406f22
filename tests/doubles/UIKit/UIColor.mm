#include "tests/doubles/UIKit/Conversion.h"

#include "toolkit/drawing/Hsv.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

namespace toolkit = brimsound::toolkit;

@implementation UIColor

// In here, because the components are not visible elsewhere.
std::optional<toolkit::Color> brimsound::doubles::toToolkit(UIColor* color)
{
    if (!color)
        return std::nullopt;
    const auto [red, green, blue, alpha] = color->_components;
    return toolkit::Color { red, green, blue, alpha };
}

- (instancetype)initWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha
{
    self = [super init];
    // As from iOS 10 on, only the alpha is clamped.
    if (self)
        std::ranges::copy(std::array { red, green, blue, std::clamp(alpha, 0.0, 1.0) }, _components);
    return self;
}

- (instancetype)initWithHue:(CGFloat)hue
                 saturation:(CGFloat)saturation
                 brightness:(CGFloat)brightness
                      alpha:(CGFloat)alpha
{
    const auto color = toolkit::colorOf({ hue, saturation, brightness }, alpha);
    return [self initWithRed:color.red green:color.green blue:color.blue alpha:color.alpha];
}

- (instancetype)initWithWhite:(CGFloat)white alpha:(CGFloat)alpha
{
    return [self initWithRed:white green:white blue:white alpha:alpha];
}

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha
{
    return [[[self alloc] initWithRed:red green:green blue:blue alpha:alpha] autorelease];
}

+ (UIColor*)colorWithHue:(CGFloat)hue
              saturation:(CGFloat)saturation
              brightness:(CGFloat)brightness
                   alpha:(CGFloat)alpha
{
    return [[[self alloc] initWithHue:hue saturation:saturation brightness:brightness
                                alpha:alpha] autorelease];
}

+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha
{
    return [[[self alloc] initWithWhite:white alpha:alpha] autorelease];
}

+ (UIColor*)blackColor
{
    return [self colorWithWhite:0 alpha:1];
}

+ (UIColor*)whiteColor
{
    return [self colorWithWhite:1 alpha:1];
}

+ (UIColor*)yellowColor
{
    return [self colorWithRed:1 green:1 blue:0 alpha:1];
}

+ (UIColor*)lightGrayColor
{
    return [self colorWithWhite:2.0 / 3 alpha:1];
}

+ (UIColor*)clearColor
{
    return [self colorWithWhite:0 alpha:0];
}

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha
{
    CGFloat* const places[] = { red, green, blue, alpha };
    for (std::size_t i = 0; i < std::size(places); ++i) {
        if (places[i])
            *places[i] = _components[i];
    }
    return YES;
}

- (BOOL)getHue:(CGFloat*)hue
    saturation:(CGFloat*)saturation
    brightness:(CGFloat*)brightness
         alpha:(CGFloat*)alpha
{
    if (!std::ranges::all_of(_components, [](CGFloat component) { return std::isfinite(component); }))
        return NO;
    const auto hsv = toolkit::hsvOf(*brimsound::doubles::toToolkit(self));
    const std::pair<CGFloat*, CGFloat> values[] = { { hue, hsv.hue }, { saturation, hsv.saturation },
        { brightness, hsv.value }, { alpha, _components[3] } };
    for (const auto& [place, value] : values) {
        if (place)
            *place = value;
    }
    return YES;
}

- (void)setFill
{
    if (const CGContextRef context = UIGraphicsGetCurrentContext())
        CGContextSetRGBFillColor(context, _components[0], _components[1], _components[2], _components[3]);
}

@end

namespace brimsound::doubles {

UIColor* toPlatform(const std::optional<toolkit::Color>& color)
{
    return color ? [UIColor colorWithRed:color->red green:color->green blue:color->blue alpha:color->alpha]
                 : nil;
}

} // namespace brimsound::doubles
