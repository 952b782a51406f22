#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/control/Switch.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

namespace {

toolkit::Switch& native(UISwitch* control)
{
    return doubles::nativeOf<toolkit::Switch>(control);
}

} // namespace

@implementation UISwitch

- (instancetype)initWithFrame:(CGRect)frame
{
    auto* const control = new doubles::Hosted<toolkit::Switch>;
    // The size is the platform's own.
    control->setFrame({ doubles::toToolkit(frame).origin, control->frame().size });
    return [self initWithNative:control];
}

FORWARD_GETTER(BOOL, isOn, isOn)

- (void)setOn:(BOOL)on
{
    [self setOn:on animated:NO];
}

- (void)setOn:(BOOL)on animated:(BOOL)animated
{
    native(self).setOn(on, animated);
}

@end

namespace brimsound::doubles {

void flip(UISwitch* control)
{
    const toolkit::Touch touch { native(control).toWindow(native(control).bounds().middle()) };
    native(control).touchBegan(touch);
    native(control).touchEnded(touch);
}

} // namespace brimsound::doubles
