// The native views behind ours.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

/// What a view of ours asks of its base class. Native classes that hand these calls to our objects answer
/// from their superclass; all others just answer.
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
