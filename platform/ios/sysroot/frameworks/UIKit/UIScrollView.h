#pragma once

#import <UIKit/UIView.h>

@interface UIScrollView : UIView
#if defined(GNUSTEP)
{
    struct UIScrollViewState* _scrollViewState;
}
#endif

@property (nonatomic) CGPoint contentOffset;
@property (nonatomic) CGSize contentSize;
@end
