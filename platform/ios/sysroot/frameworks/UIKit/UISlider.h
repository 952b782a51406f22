#pragma once

#import <UIKit/UIControl.h>

@class UIColor;
@class UIImage;

@interface UISlider : UIControl

@property (nonatomic) float value;
@property (nonatomic) float minimumValue;
@property (nonatomic) float maximumValue;
@property (nonatomic, retain) UIColor* minimumTrackTintColor;
/// nil for the standard thumb.
@property (nonatomic, readonly) UIImage* currentThumbImage;
@end
