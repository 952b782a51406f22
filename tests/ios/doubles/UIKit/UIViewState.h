// What stands behind a UIView.
#pragma once

#include "tests/ios/doubles/UIKit/Animation.h"

#include <vector>

struct UIViewState {
    CGRect frame {};
    /// What the view's own coordinates start from: the offset of a scroll view.
    CGPoint boundsOrigin {};
    /// Not retained.
    UIView* superview = nil;
    /// Whose view this is. Not retained.
    UIViewController* controller = nil;
    UIViewAutoresizing autoresizingMask = UIViewAutoresizingNone;
    /// Retained, back to front.
    std::vector<UIView*> subviews;
    /// Retained, like the layer, which is nil until somebody asks for it.
    UIColor* backgroundColor = nil;
    CALayer* layer = nil;
    CGFloat alpha = 1;
    NSInteger tag = 0;
    /// Retained.
    NSString* accessibilityLabel = nil;
    NSString* accessibilityValue = nil;
    BOOL isAccessibilityElement = NO;
    UIAccessibilityTraits accessibilityTraits = 0;
    bool isHidden = false;
    bool clipsToBounds = false;
    bool isUserInteractionEnabled = true;
    bool needsLayout = true;
    brimsound::doubles::Animation animation;
};

namespace brimsound::doubles {

UIViewState& stateOf(UIView*);

/// All zero for nil.
Components componentsOf(UIColor*);

/// Takes up a new value in place of a former one.
template <typename Object> void assignRetained(Object*& place, Object* object)
{
    Object* const former = place;
    place = [object retain];
    [former release];
}

template <typename Object> void assignCopied(Object*& place, Object* object)
{
    Object* const former = place;
    place = [object copy];
    [former release];
}

} // namespace brimsound::doubles
