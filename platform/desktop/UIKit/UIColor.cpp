#include "platform/UIKit/UIColor.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/desktop/CoreGraphics/BitmapContext.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Color.h"
#include "toolkit/drawing/Hsv.h"

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

RetainPtr<UIColor> UIColor::colorWithHueSaturationBrightnessAlpha(
    CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha)
{
    return desktop::uiColor(
        toolkit::colorOf({ inRange(hue), inRange(saturation), inRange(brightness) }, inRange(alpha)));
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
    const auto& color = componentsOf(*this);
    if (!std::isfinite(color.red) || !std::isfinite(color.green) || !std::isfinite(color.blue)
        || !std::isfinite(color.alpha))
        return false;
    const auto hsv = toolkit::hsvOf(color);
    hue = hsv.hue;
    saturation = hsv.saturation;
    brightness = hsv.value;
    alpha = color.alpha;
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
