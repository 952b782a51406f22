#include "tests/ios/doubles/Doubles.h"

@implementation UISwitch

- (instancetype)initWithFrame:(CGRect)frame
{
    // The size is the platform's own.
    frame.size = CGSizeMake(51, 31);
    return [super initWithFrame:frame];
}

- (BOOL)isOn
{
    return _on;
}

- (void)setOn:(BOOL)on
{
    [self setOn:on animated:NO];
}

- (void)setOn:(BOOL)on animated:(BOOL)animated
{
    _on = on;
}

@end

namespace brimsound::doubles {

void flip(UISwitch* control)
{
    [control setOn:![control isOn] animated:YES];
    [control sendActionsForControlEvents:UIControlEventValueChanged];
}

} // namespace brimsound::doubles
