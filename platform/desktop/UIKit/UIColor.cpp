#include "platform/UIKit/UIColor.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/desktop/CoreGraphics/BitmapContext.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Color.h"

#include <algorithm>
#include <cmath>

namespace brimsound {

namespace {

struct ColorObject : toolkit::Object {
    explicit ColorObject(const toolkit::Color& components)
        : color(components)
    {
    }

    const toolkit::Color color;
};

double inRange(double component)
{
    return std::clamp(component, 0.0, 1.0);
}

const toolkit::Color& componentsOf(const UIColor& color)
{
    return desktop::nativeOf<ColorObject>(color).color;
}

} // namespace

UIColor::UIColor(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIColor> UIColor::colorWithRedGreenBlueAlpha(
    CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha)
{
    return desktop::uiColor(toolkit::Color { inRange(red), inRange(green), inRange(blue), inRange(alpha) });
}

// Both ways: J. Foley, A. van Dam et al., "Computer Graphics: Principles and Practice", on the HSV model.

RetainPtr<UIColor> UIColor::colorWithHueSaturationBrightnessAlpha(
    CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha)
{
    hue = inRange(hue);
    saturation = inRange(saturation);
    brightness = inRange(brightness);
    // Each component stands at the brightness for a third of the circle, and goes down and up beside it.
    const auto component = [&](double peakOfFall) {
        const double sixth = std::fmod(peakOfFall + 6 * hue, 6);
        const double below = std::clamp(std::min(sixth, 4 - sixth), 0.0, 1.0);
        return brightness * (1 - saturation * below);
    };
    return colorWithRedGreenBlueAlpha(component(5), component(3), component(1), alpha);
}

RetainPtr<UIColor> UIColor::colorWithWhiteAlpha(CGFloat white, CGFloat alpha)
{
    return colorWithRedGreenBlueAlpha(white, white, white, alpha);
}

RetainPtr<UIColor> UIColor::blackColor()
{
    return colorWithWhiteAlpha(0, 1);
}

RetainPtr<UIColor> UIColor::whiteColor()
{
    return colorWithWhiteAlpha(1, 1);
}

RetainPtr<UIColor> UIColor::yellowColor()
{
    return colorWithRedGreenBlueAlpha(1, 1, 0, 1);
}

RetainPtr<UIColor> UIColor::lightGrayColor()
{
    return colorWithWhiteAlpha(2.0 / 3, 1);
}

RetainPtr<UIColor> UIColor::clearColor()
{
    return colorWithWhiteAlpha(0, 0);
}

bool UIColor::getRedGreenBlueAlpha(CGFloat& red, CGFloat& green, CGFloat& blue, CGFloat& alpha) const
{
    const auto& components = componentsOf(*this);
    red = components.red;
    green = components.green;
    blue = components.blue;
    alpha = components.alpha;
    return true;
}

bool UIColor::getHueSaturationBrightnessAlpha(
    CGFloat& hue, CGFloat& saturation, CGFloat& brightness, CGFloat& alpha) const
{
    const auto& [red, green, blue, opacity] = componentsOf(*this);
    if (!std::isfinite(red) || !std::isfinite(green) || !std::isfinite(blue) || !std::isfinite(opacity))
        return false;
    const double highest = std::max({ red, green, blue });
    const double range = highest - std::min({ red, green, blue });
    double sixths = 0;
    if (range > 0 && highest == red)
        sixths = (green - blue) / range;
    else if (range > 0 && highest == green)
        sixths = 2 + (blue - red) / range;
    else if (range > 0)
        sixths = 4 + (red - green) / range;
    hue = (sixths < 0 ? sixths + 6 : sixths) / 6;
    saturation = highest > 0 ? range / highest : 0;
    brightness = highest;
    alpha = opacity;
    return true;
}

void UIColor::setFill() const
{
    if (const auto* context = UIGraphicsGetCurrentContext())
        desktop::bitmapContextOf(*context).fillColor = componentsOf(*this);
}

namespace desktop {

Color colorOf(const RetainPtr<UIColor>& color)
{
    return toolkitColor(color).value_or(toolkit::transparent);
}

std::optional<Color> toolkitColor(const RetainPtr<UIColor>& color)
{
    return color ? std::optional(componentsOf(*color)) : std::nullopt;
}

RetainPtr<UIColor> uiColor(const std::optional<Color>& color)
{
    return color ? adopt(&objectOf<UIColor>(*new ColorObject(*color))) : nullptr;
}

} // namespace desktop

} // namespace brimsound
