#pragma once

#import <UIKit/UIView.h>

@class UIImage;

@interface UIImageView : UIView

@property (nonatomic, retain) UIImage* image;
@property (nonatomic, retain) UIImage* highlightedImage;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@end
