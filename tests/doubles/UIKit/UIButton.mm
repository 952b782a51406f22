#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/control/Button.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

@implementation UIButton

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithNative:new doubles::Hosted<toolkit::Button>(doubles::toToolkit(frame))];
}

+ (instancetype)buttonWithType:(UIButtonType)buttonType
{
    return [[[self alloc] init] autorelease];
}

@end
