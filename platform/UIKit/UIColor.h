// Colours.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"

namespace brimsound {

/// An unchanging colour in RGB. Components run from 0 to 1.
class UIColor : public NSObject {
public:
    static RetainPtr<UIColor> colorWithRedGreenBlueAlpha(
        CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
    static RetainPtr<UIColor> colorWithWhiteAlpha(CGFloat white, CGFloat alpha);

    static RetainPtr<UIColor> blackColor();
    static RetainPtr<UIColor> whiteColor();
    /// White level 2/3.
    static RetainPtr<UIColor> lightGrayColor();
    /// Black at alpha 0.
    static RetainPtr<UIColor> clearColor();

    /// Hands out the components. False, with nothing handed out, for a colour that has none in RGB.
    bool getRedGreenBlueAlpha(CGFloat& red, CGFloat& green, CGFloat& blue, CGFloat& alpha) const;

private:
    explicit UIColor(Peer*);
};

} // namespace brimsound
