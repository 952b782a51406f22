#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/scroll/ScrollView.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

namespace {

toolkit::ScrollView& native(UIScrollView* view)
{
    return doubles::nativeOf<toolkit::ScrollView>(view);
}

} // namespace

/// The base class of tables. Nothing else scrolls.
@implementation UIScrollView

- (CGPoint)contentOffset
{
    return [self bounds].origin;
}

- (void)setContentOffset:(CGPoint)offset
{
    // The platform does not limit it to the edges of the content.
    native(self).stop();
    native(self).setOrigin({ offset.x, offset.y });
}

- (CGSize)contentSize
{
    return CGSizeMake([self bounds].size.width, native(self).contentHeight());
}

@end
