// Colors.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An unchanging color in RGB. Components run from 0 to 1: what is below counts as 0 and what is above as 1.
class UIColor : public NSObject {
public:
    static RetainPtr<UIColor> colorWithRedGreenBlueAlpha(
        CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
    /// Hue 0 and 1 are red, 1/3 is green, 2/3 blue; brightness is the largest of red, green and blue.
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

    /// Hands out the components. False, with nothing handed out, for a color that has none in RGB.
    bool getRedGreenBlueAlpha(CGFloat& red, CGFloat& green, CGFloat& blue, CGFloat& alpha) const;
    /// The same for hue, saturation and brightness: false where a component is no number. A gray has hue 0.
    bool getHueSaturationBrightnessAlpha(
        CGFloat& hue, CGFloat& saturation, CGFloat& brightness, CGFloat& alpha) const;

    /// Makes this the color that the current context (UIGraphics.h) fills with, if there is one.
    void setFill() const;

protected:
    explicit UIColor(Peer*);
};

} // namespace brimsound
