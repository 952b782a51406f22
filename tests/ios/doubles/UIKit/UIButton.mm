#include "tests/ios/doubles/UIKit/HostedView.h"
#include "toolkit/control/Button.h"

@implementation UIButton

- (instancetype)initWithFrame:(CGRect)frame
{
    using namespace brimsound;
    return [self initWithNative:new doubles::Hosted<toolkit::Button>(doubles::toolkitRect(frame))];
}

+ (instancetype)buttonWithType:(UIButtonType)buttonType
{
    return [[[self alloc] init] autorelease];
}

@end
