#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <UIKit/UIResponder.h>

@class CALayer;
@class UIColor;
@class UIViewController;
@class UIWindow;

typedef uint64_t UIAccessibilityTraits;

typedef enum UISemanticContentAttribute : NSInteger {
    UISemanticContentAttributeUnspecified = 0,
    UISemanticContentAttributeForceLeftToRight = 3,
} UISemanticContentAttribute;

typedef NSUInteger UIViewAutoresizing;
enum {
    UIViewAutoresizingNone = 0,
    UIViewAutoresizingFlexibleWidth = 1 << 1,
    UIViewAutoresizingFlexibleHeight = 1 << 4,
};

@interface UIView : UIResponder
#if defined(GNUSTEP)
{
    /// The view behind it, of the toolkit.
    void* _native;
    UIViewController* _controller;
    UIColor* _backgroundColor;
    CALayer* _layer;
    UISemanticContentAttribute _semanticContentAttribute;
    NSInteger _overrideUserInterfaceStyle;
}
#endif

- (instancetype)initWithFrame:(CGRect)frame;

@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) UIViewAutoresizing autoresizingMask;
@property (nonatomic) UISemanticContentAttribute semanticContentAttribute;
#if defined(GNUSTEP)
/// From iOS 13 on.
@property (nonatomic) NSInteger overrideUserInterfaceStyle;
#endif

@property (nonatomic, readonly) UIView* superview;
@property (nonatomic, readonly) UIWindow* window;
@property (nonatomic, readonly, copy) NSArray* subviews;
- (void)addSubview:(UIView*)view;
- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index;
- (void)removeFromSuperview;

- (void)setNeedsLayout;
- (void)layoutIfNeeded;
- (void)layoutSubviews;

@property (nonatomic, copy) UIColor* backgroundColor;
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;
@property (nonatomic, readonly, retain) CALayer* layer;

@property (nonatomic, copy) NSString* accessibilityLabel;
@property (nonatomic) BOOL isAccessibilityElement;
@property (nonatomic, readonly, copy) NSString* accessibilityValue;
@property (nonatomic) UIAccessibilityTraits accessibilityTraits;
- (void)accessibilityIncrement;
- (void)accessibilityDecrement;

@property (nonatomic) NSInteger tag;
- (UIView*)viewWithTag:(NSInteger)tag;
@end

@interface UIView (UIViewAnimation)
+ (void)beginAnimations:(NSString*)animationID context:(void*)context;
+ (void)setAnimationDuration:(NSTimeInterval)duration;
+ (void)setAnimationBeginsFromCurrentState:(BOOL)fromCurrentState;
+ (void)commitAnimations;
@end
