#include "platform/UIKit/UISlider.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <cmath>

namespace {

/// The nearest whole number of steps. By their number in one, as a tenth is no binary fraction and ten is.
double inSteps(double value, double step)
{
    const double inOne = 1 / step;
    return std::round(value * inOne) / inOne;
}

} // namespace

/// A slider that says its value in the product's words and moves by the product's steps.
@interface BRSlider : UISlider {
    brimsound::UIAccessibilityAdjustment _adjustment;
}
@property (nonatomic) brimsound::UIAccessibilityAdjustment adjustment;
@end

@implementation BRSlider

@synthesize adjustment = _adjustment;

- (NSString*)accessibilityValue
{
    if (!_adjustment.valueText)
        return [super accessibilityValue];
    // Without the sign of a zero, which would be read.
    const double value = inSteps([self value], _adjustment.step) + 0.0;
    return brimsound::ios::nativeText(_adjustment.valueText(value));
}

- (void)accessibilityIncrement
{
    [self moveBySteps:1];
}

- (void)accessibilityDecrement
{
    [self moveBySteps:-1];
}

/// With the events of a finger that takes the thumb there.
- (void)moveBySteps:(double)steps
{
    const double step = _adjustment.step;
    if (!(step > 0))
        return;
    [self sendActionsForControlEvents:UIControlEventTouchDown];
    const float before = [self value];
    [self setValue:static_cast<float>(inSteps([self value] + steps * step, step))];
    if ([self value] != before)
        [self sendActionsForControlEvents:UIControlEventValueChanged];
    [self sendActionsForControlEvents:UIControlEventTouchDragInside];
    [self sendActionsForControlEvents:UIControlEventTouchUpInside];
}

@end

namespace brimsound {

namespace {

::UISlider* nativeOf(const UISlider& slider)
{
    return ios::nativeOf(slider);
}

} // namespace

UISlider::UISlider()
    : UIControl(ios::peer([[BRSlider alloc] init]))
{
    [nativeOf(*this) setSemanticContentAttribute:UISemanticContentAttributeForceLeftToRight];
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

void UISlider::setAccessibilityAdjustment(const UIAccessibilityAdjustment& adjustment)
{
    // A slider that the platform made has none.
    if ([nativeOf(*this) isKindOfClass:[BRSlider class]])
        [static_cast<BRSlider*>(nativeOf(*this)) setAdjustment:adjustment];
}

UIImage* UISlider::currentThumbImage() const
{
    return ios::objectOf<UIImage>([nativeOf(*this) currentThumbImage]);
}

} // namespace brimsound
