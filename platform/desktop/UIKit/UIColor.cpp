#include "platform/UIKit/UIColor.h"

#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Color.h"

namespace brimsound {

namespace {

struct ColorPeer : Peer {
    explicit ColorPeer(const desktop::Color& components)
        : color(components)
    {
    }

    const desktop::Color color;
};

const desktop::Color& componentsOf(const UIColor& color)
{
    return static_cast<ColorPeer&>(color.peer()).color;
}

} // namespace

UIColor::UIColor(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIColor> UIColor::colorWithRedGreenBlueAlpha(
    CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha)
{
    return adopt(new UIColor(new ColorPeer({ red, green, blue, alpha })));
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

namespace desktop {

Color colorOf(const RetainPtr<UIColor>& color)
{
    return color ? componentsOf(*color) : Color { 0, 0, 0, 0 };
}

} // namespace desktop

} // namespace brimsound
