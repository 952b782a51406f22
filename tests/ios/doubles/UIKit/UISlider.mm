#include "tests/ios/doubles/UIKit/UIViewState.h"

#include <algorithm>
#include <cmath>

struct UISliderState {
    float value = 0;
    float minimum = 0;
    float maximum = 1;
    UIColor* minimumTrackTintColor = nil;
};

@implementation UISlider

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self)
        _sliderState = new UISliderState;
    return self;
}

- (void)dealloc
{
    [_sliderState->minimumTrackTintColor release];
    delete _sliderState;
    [super dealloc];
}

- (float)value
{
    return _sliderState->value;
}

- (void)setValue:(float)value
{
    if (!std::isnan(value))
        _sliderState->value = std::clamp(value, _sliderState->minimum, _sliderState->maximum);
}

- (float)minimumValue
{
    return _sliderState->minimum;
}

- (void)setMinimumValue:(float)minimum
{
    _sliderState->minimum = minimum;
    _sliderState->maximum = std::max(_sliderState->maximum, minimum);
    [self setValue:_sliderState->value];
}

- (float)maximumValue
{
    return _sliderState->maximum;
}

- (void)setMaximumValue:(float)maximum
{
    _sliderState->maximum = maximum;
    _sliderState->minimum = std::min(_sliderState->minimum, maximum);
    [self setValue:_sliderState->value];
}

- (UIColor*)minimumTrackTintColor
{
    return _sliderState->minimumTrackTintColor;
}

- (void)setMinimumTrackTintColor:(UIColor*)color
{
    brimsound::doubles::assignRetained(_sliderState->minimumTrackTintColor, color);
}

- (UIImage*)currentThumbImage
{
    // The standard thumb is drawn without an image to hand out.
    return nil;
}

@end
