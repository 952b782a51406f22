#pragma once

#import <UIKit/UIView.h>

@class UIAlertView;

@protocol UIAlertViewDelegate <NSObject>
@optional
- (void)alertView:(UIAlertView*)alertView clickedButtonAtIndex:(NSInteger)buttonIndex;
@end

@interface UIAlertView : UIView
#if defined(GNUSTEP)
{
    NSString* _title;
    NSString* _message;
    id _delegate;
    NSMutableArray* _buttonTitles;
}
#endif

- (instancetype)initWithTitle:(NSString*)title
                      message:(NSString*)message
                     delegate:(id)delegate
            cancelButtonTitle:(NSString*)cancelButtonTitle
            otherButtonTitles:(NSString*)otherButtonTitles, ...;

@property (nonatomic, copy) NSString* title;
@property (nonatomic, copy) NSString* message;
@property (nonatomic, assign) id delegate;
@property (nonatomic, readonly, getter=isVisible) BOOL visible;
/// The new button's index.
- (NSInteger)addButtonWithTitle:(NSString*)title;
- (NSString*)buttonTitleAtIndex:(NSInteger)buttonIndex;
- (void)show;
@end
