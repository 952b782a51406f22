#pragma once

#import <UIKit/UIControl.h>

@interface UISwitch : UIControl
#if defined(GNUSTEP)
{
    BOOL _on;
}
#endif

@property (nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;
@end
