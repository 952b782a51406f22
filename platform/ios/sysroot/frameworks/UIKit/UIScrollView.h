#pragma once

#import <UIKit/UIView.h>

@interface UIScrollView : UIView

@property (nonatomic) CGPoint contentOffset;
@property (nonatomic, readonly) CGSize contentSize;
@end
