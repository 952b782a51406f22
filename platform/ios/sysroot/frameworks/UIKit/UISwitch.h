#pragma once

#import <UIKit/UIControl.h>

@interface UISwitch : UIControl

@property (nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;
@end
