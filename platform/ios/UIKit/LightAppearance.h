// The pane is light in a dark app too: its captions are black.
#pragma once

#import <UIKit/UIKit.h>

/// A view's method from iOS 13 on. It is declared here, because an SDK does not offer it to a program for
/// iOS 9.
@protocol BRUserInterfaceStyle
- (void)setOverrideUserInterfaceStyle:(NSInteger)style;
@end

namespace brimsound::ios {

/// UIUserInterfaceStyleLight.
constexpr NSInteger lightStyle = 1;

/// For the view and its subviews. Does nothing before iOS 13, which has no dark appearance.
inline void keepLight(::UIView* view)
{
    if ([view respondsToSelector:@selector(setOverrideUserInterfaceStyle:)])
        [(id<BRUserInterfaceStyle>)view setOverrideUserInterfaceStyle:lightStyle];
}

} // namespace brimsound::ios
