#include "tests/ios/doubles/UIKit/Color.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "toolkit/control/Slider.h"

using namespace brimsound;

namespace {

toolkit::Slider& native(UISlider* slider)
{
    return doubles::nativeOf<toolkit::Slider>(slider);
}

} // namespace

@implementation UISlider

- (instancetype)initWithFrame:(CGRect)frame
{
    auto* const slider = new doubles::Hosted<toolkit::Slider>;
    slider->setFrame(doubles::toolkitRect(frame));
    return [self initWithNative:slider];
}

- (float)value
{
    return native(self).value();
}

- (void)setValue:(float)value
{
    native(self).setValue(value);
}

- (float)minimumValue
{
    return native(self).minimum();
}

- (void)setMinimumValue:(float)minimum
{
    native(self).setMinimum(minimum);
}

- (float)maximumValue
{
    return native(self).maximum();
}

- (void)setMaximumValue:(float)maximum
{
    native(self).setMaximum(maximum);
}

- (UIColor*)minimumTrackTintColor
{
    return doubles::uiColor(native(self).tint());
}

- (void)setMinimumTrackTintColor:(UIColor*)color
{
    native(self).setTint(doubles::toolkitColor(color));
}

- (UIImage*)currentThumbImage
{
    // The platform draws the standard thumb without an image.
    return nil;
}

@end
