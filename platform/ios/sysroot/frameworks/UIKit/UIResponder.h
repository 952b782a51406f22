// What events and the keyboard can be given to.
#pragma once

#import <Foundation/Foundation.h>

@interface UIResponder : NSObject
- (BOOL)canBecomeFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;
- (BOOL)isFirstResponder;
@end
