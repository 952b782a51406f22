#include "tests/ios/doubles/UIKit/UIViewState.h"

#include <algorithm>
#include <cmath>

using brimsound::doubles::Components;

@implementation UIColor

Components brimsound::doubles::componentsOf(UIColor* color)
{
    Components components {};
    if (color)
        std::ranges::copy(color->_components, components.begin());
    return components;
}

- (instancetype)initWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha
{
    self = [super init];
    // As from iOS 10 on, only the alpha is clamped.
    if (self)
        std::ranges::copy(Components { red, green, blue, std::clamp(alpha, 0.0, 1.0) }, _components);
    return self;
}

// Both ways: J. Foley, A. van Dam et al., "Computer Graphics: Principles and Practice", on the HSV model.

- (instancetype)initWithHue:(CGFloat)hue
                 saturation:(CGFloat)saturation
                 brightness:(CGFloat)brightness
                      alpha:(CGFloat)alpha
{
    // Each component stands at the brightness for a third of the circle, and goes down and up beside it.
    const auto component = [&](double peakOfFall) {
        const double sixth = std::fmod(peakOfFall + 6 * hue, 6);
        const double below = std::clamp(std::min(sixth, 4 - sixth), 0.0, 1.0);
        return brightness * (1 - saturation * below);
    };
    return [self initWithRed:component(5) green:component(3) blue:component(1) alpha:alpha];
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
    const auto [red, green, blue, opacity] = _components;
    if (!std::ranges::all_of(_components, [](CGFloat component) { return std::isfinite(component); }))
        return NO;
    const double highest = std::max({ red, green, blue });
    const double range = highest - std::min({ red, green, blue });
    double sixths = 0;
    if (range > 0 && highest == red)
        sixths = (green - blue) / range;
    else if (range > 0 && highest == green)
        sixths = 2 + (blue - red) / range;
    else if (range > 0)
        sixths = 4 + (red - green) / range;
    if (hue)
        *hue = (sixths < 0 ? sixths + 6 : sixths) / 6;
    if (saturation)
        *saturation = highest > 0 ? range / highest : 0;
    if (brightness)
        *brightness = highest;
    if (alpha)
        *alpha = opacity;
    return YES;
}

- (void)setFill
{
    if (const CGContextRef context = UIGraphicsGetCurrentContext())
        CGContextSetRGBFillColor(context, _components[0], _components[1], _components[2], _components[3]);
}

- (id)copyWithZone:(NSZone*)zone
{
    // It never changes.
    return [self retain];
}

- (BOOL)isEqual:(id)other
{
    return [other isKindOfClass:[UIColor class]]
        && std::ranges::equal(_components, static_cast<UIColor*>(other)->_components);
}

- (NSUInteger)hash
{
    return static_cast<NSUInteger>(255 * (_components[0] + 2 * _components[1] + 4 * _components[2]));
}

@end
