#include "tests/ios/doubles/UIKit/UIResponderState.h"

#import <UIKit/UIKit.h>

namespace {

/// Who has the keyboard. Not retained.
UIResponder* firstResponder = nil;

} // namespace

@implementation UIResponder

- (void)dealloc
{
    if (firstResponder == self)
        firstResponder = nil;
    [super dealloc];
}

- (BOOL)canBecomeFirstResponder
{
    return NO;
}

- (BOOL)becomeFirstResponder
{
    if (firstResponder == self)
        return YES;
    if (![self canBecomeFirstResponder] || (firstResponder && ![firstResponder resignFirstResponder]))
        return NO;
    firstResponder = self;
    return YES;
}

- (BOOL)resignFirstResponder
{
    if (firstResponder == self)
        firstResponder = nil;
    return YES;
}

- (BOOL)isFirstResponder
{
    return firstResponder == self;
}

@end

namespace brimsound::doubles {

UIResponder* currentFirstResponder()
{
    return firstResponder;
}

} // namespace brimsound::doubles
