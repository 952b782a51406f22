#import <UIKit/UIKit.h>

/// Only views can take the keyboard here.
@implementation UIResponder

- (BOOL)canBecomeFirstResponder
{
    return NO;
}

- (BOOL)becomeFirstResponder
{
    return NO;
}

- (BOOL)resignFirstResponder
{
    return YES;
}

- (BOOL)isFirstResponder
{
    return NO;
}

@end
