#pragma once

#import <UIKit/UIView.h>

@class UIColor;
@class UIFont;

typedef enum NSTextAlignment : NSInteger {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
    NSTextAlignmentNatural = 4,
} NSTextAlignment;

@interface UILabel : UIView

@property (nonatomic, copy) NSString* text;
@property (nonatomic, retain) UIFont* font;
@property (nonatomic, retain) UIColor* textColor;
@property (nonatomic, retain) UIColor* highlightedTextColor;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic) NSTextAlignment textAlignment;
@end
