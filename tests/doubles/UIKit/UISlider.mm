#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/control/Slider.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

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
    slider->setFrame(doubles::toToolkit(frame));
    return [self initWithNative:slider];
}

FORWARD_PROPERTY(float, value, setValue, value, setValue)
FORWARD_PROPERTY(float, minimumValue, setMinimumValue, minimum, setMinimum)
FORWARD_PROPERTY(float, maximumValue, setMaximumValue, maximum, setMaximum)
FORWARD_PROPERTY(UIColor*, minimumTrackTintColor, setMinimumTrackTintColor, tint, setTint)

- (UIImage*)currentThumbImage
{
    // The platform draws the standard thumb without an image.
    return nil;
}

@end
