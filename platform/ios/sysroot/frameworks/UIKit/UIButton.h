#pragma once

#import <UIKit/UIControl.h>

typedef enum UIButtonType : NSInteger {
    UIButtonTypeCustom = 0,
} UIButtonType;

@interface UIButton : UIControl
+ (instancetype)buttonWithType:(UIButtonType)buttonType;
@end
