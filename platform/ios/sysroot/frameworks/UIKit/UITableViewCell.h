#pragma once

#import <UIKit/UIView.h>

@class UIImageView;
@class UILabel;

typedef enum UITableViewCellStyle : NSInteger {
    UITableViewCellStyleDefault = 0,
    UITableViewCellStyleValue1 = 1,
    UITableViewCellStyleValue2 = 2,
    UITableViewCellStyleSubtitle = 3,
} UITableViewCellStyle;

typedef enum UITableViewCellSelectionStyle : NSInteger {
    UITableViewCellSelectionStyleNone = 0,
    UITableViewCellSelectionStyleBlue = 1,
    UITableViewCellSelectionStyleGray = 2,
    UITableViewCellSelectionStyleDefault = 3,
} UITableViewCellSelectionStyle;

typedef enum UITableViewCellEditingStyle : NSInteger {
    UITableViewCellEditingStyleNone = 0,
    UITableViewCellEditingStyleDelete = 1,
    UITableViewCellEditingStyleInsert = 2,
} UITableViewCellEditingStyle;

@interface UITableViewCell : UIView

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier;

@property (nonatomic, readonly, copy) NSString* reuseIdentifier;
@property (nonatomic, readonly, retain) UIView* contentView;
@property (nonatomic, readonly, retain) UILabel* textLabel;
/// nil in the default style.
@property (nonatomic, readonly, retain) UILabel* detailTextLabel;
@property (nonatomic, readonly, retain) UIImageView* imageView;
@property (nonatomic, retain) UIView* accessoryView;
@property (nonatomic, retain) UIView* backgroundView;
@property (nonatomic, retain) UIView* selectedBackgroundView;

@property (nonatomic) UITableViewCellSelectionStyle selectionStyle;
@property (nonatomic, getter=isSelected) BOOL selected;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
- (void)setSelected:(BOOL)selected animated:(BOOL)animated;
@end
