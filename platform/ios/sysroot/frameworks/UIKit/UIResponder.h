#pragma once

#import <Foundation/Foundation.h>

@interface UIResponder : NSObject
- (BOOL)canBecomeFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;
- (BOOL)isFirstResponder;
@end
