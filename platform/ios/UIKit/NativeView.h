// The native views of the product's views.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

/// Calls of the product's views to their base class. Our native classes, which forward these calls to the
/// product's objects, call their superclass; all other classes just call the method.
@interface UIView (BRBaseClass)
- (void)br_baseSetFrame:(CGRect)frame;
- (void)br_baseLayoutSubviews;
@end

namespace brimsound::ios {

inline ::UIView* nativeView(const UIView& view)
{
    return nativeOf(view);
}

} // namespace brimsound::ios
