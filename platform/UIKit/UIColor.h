#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An immutable RGB color. Components below 0 count as 0 and components above 1 as 1.
class UIColor : public NSObject {
public:
    static RetainPtr<UIColor> colorWithRedGreenBlueAlpha(
        CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
    /// Hue 0 and 1 are red, 1/3 is green, 2/3 is blue; brightness is the largest of red, green and blue.
    static RetainPtr<UIColor> colorWithHueSaturationBrightnessAlpha(
        CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha);
    static RetainPtr<UIColor> colorWithWhiteAlpha(CGFloat white, CGFloat alpha);

    static RetainPtr<UIColor> blackColor();
    static RetainPtr<UIColor> whiteColor();
    /// Red and green.
    static RetainPtr<UIColor> yellowColor();
    /// White level 2/3.
    static RetainPtr<UIColor> lightGrayColor();
    /// Black at alpha 0.
    static RetainPtr<UIColor> clearColor();

    /// Sets the arguments to the components. Returns false and sets nothing when the color has no RGB
    /// components.
    bool getRedGreenBlueAlpha(CGFloat& red, CGFloat& green, CGFloat& blue, CGFloat& alpha) const;
    /// The same for hue, saturation and brightness. Also false when a component is NaN. The hue of a gray is
    /// 0.
    bool getHueSaturationBrightnessAlpha(
        CGFloat& hue, CGFloat& saturation, CGFloat& brightness, CGFloat& alpha) const;

    /// Sets the fill color of the current context (UIGraphics.h), if there is one.
    void setFill() const;

protected:
    explicit UIColor(Peer*);
};

} // namespace brimsound
