#include "platform/UIKit/UISlider.h"

#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <cmath>

namespace brimsound {

namespace {

::UISlider* nativeOf(const UISlider& slider)
{
    return ios::nativeOf(slider);
}

} // namespace

UISlider::UISlider()
    : UIControl(ios::peer([[::UISlider alloc] init]))
{
}

float UISlider::value() const
{
    return [nativeOf(*this) value];
}

void UISlider::setValue(float value)
{
    if (!std::isnan(value))
        [nativeOf(*this) setValue:value];
}

float UISlider::minimumValue() const
{
    return [nativeOf(*this) minimumValue];
}

void UISlider::setMinimumValue(float value)
{
    [nativeOf(*this) setMinimumValue:value];
}

float UISlider::maximumValue() const
{
    return [nativeOf(*this) maximumValue];
}

void UISlider::setMaximumValue(float value)
{
    [nativeOf(*this) setMaximumValue:value];
}

RetainPtr<UIColor> UISlider::minimumTrackTintColor() const
{
    return ios::retainedObjectOf<UIColor>([nativeOf(*this) minimumTrackTintColor]);
}

void UISlider::setMinimumTrackTintColor(RetainPtr<UIColor> color)
{
    [nativeOf(*this) setMinimumTrackTintColor:ios::nativeOf(color.get())];
}

UIImage* UISlider::currentThumbImage() const
{
    return ios::objectOf<UIImage>([nativeOf(*this) currentThumbImage]);
}

} // namespace brimsound
