#pragma once

#import <UIKit/UIScrollView.h>
#import <UIKit/UITableViewCell.h>

@class UITableView;

typedef enum UITableViewStyle : NSInteger {
    UITableViewStylePlain = 0,
    UITableViewStyleGrouped = 1,
} UITableViewStyle;

typedef enum UITableViewRowAnimation : NSInteger {
    UITableViewRowAnimationFade = 0,
    UITableViewRowAnimationRight = 1,
    UITableViewRowAnimationLeft = 2,
    UITableViewRowAnimationTop = 3,
    UITableViewRowAnimationBottom = 4,
    UITableViewRowAnimationNone = 5,
    UITableViewRowAnimationMiddle = 6,
    UITableViewRowAnimationAutomatic = 100,
} UITableViewRowAnimation;

@protocol UITableViewDataSource <NSObject>
- (NSInteger)tableView:(UITableView*)tableView numberOfRowsInSection:(NSInteger)section;
- (UITableViewCell*)tableView:(UITableView*)tableView cellForRowAtIndexPath:(NSIndexPath*)indexPath;
@optional
- (NSInteger)numberOfSectionsInTableView:(UITableView*)tableView;
- (NSString*)tableView:(UITableView*)tableView titleForHeaderInSection:(NSInteger)section;
- (NSString*)tableView:(UITableView*)tableView titleForFooterInSection:(NSInteger)section;
- (BOOL)tableView:(UITableView*)tableView canEditRowAtIndexPath:(NSIndexPath*)indexPath;
- (void)tableView:(UITableView*)tableView
    commitEditingStyle:(UITableViewCellEditingStyle)editingStyle
     forRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@protocol UITableViewDelegate <NSObject>
@optional
- (CGFloat)tableView:(UITableView*)tableView heightForRowAtIndexPath:(NSIndexPath*)indexPath;
- (void)tableView:(UITableView*)tableView
      willDisplayCell:(UITableViewCell*)cell
    forRowAtIndexPath:(NSIndexPath*)indexPath;
- (void)tableView:(UITableView*)tableView didSelectRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@interface UITableView : UIScrollView

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style;

@property (nonatomic, assign) id<UITableViewDataSource> dataSource;
@property (nonatomic, assign) id<UITableViewDelegate> delegate;
@property (nonatomic, retain) UIColor* separatorColor;

- (void)reloadData;
- (void)deleteRowsAtIndexPaths:(NSArray*)indexPaths withRowAnimation:(UITableViewRowAnimation)animation;
- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier;
- (CGRect)rectForRowAtIndexPath:(NSIndexPath*)indexPath;
/// nil for a row out of view.
- (UITableViewCell*)cellForRowAtIndexPath:(NSIndexPath*)indexPath;
@end

@interface NSIndexPath (UITableView)
+ (instancetype)indexPathForRow:(NSInteger)row inSection:(NSInteger)section;
@property (nonatomic, readonly) NSInteger section;
@property (nonatomic, readonly) NSInteger row;
@end
