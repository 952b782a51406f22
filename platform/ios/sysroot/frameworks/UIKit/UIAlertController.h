#pragma once

#import <UIKit/UIViewController.h>

@class UIAlertAction;

typedef void (^UIAlertActionHandler)(UIAlertAction* action);

typedef enum UIAlertActionStyle : NSInteger {
    UIAlertActionStyleDefault = 0,
    UIAlertActionStyleCancel = 1,
} UIAlertActionStyle;

typedef enum UIAlertControllerStyle : NSInteger {
    UIAlertControllerStyleActionSheet = 0,
    UIAlertControllerStyleAlert = 1,
} UIAlertControllerStyle;

@interface UIAlertAction : NSObject
#if defined(GNUSTEP)
{
    NSString* _title;
    UIAlertActionStyle _style;
    UIAlertActionHandler _handler;
}
#endif

/// Copies the handler.
+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(UIAlertActionHandler)handler;

@property (nonatomic, readonly) NSString* title;
@property (nonatomic, readonly) UIAlertActionStyle style;
@end

@interface UIAlertController : UIViewController
#if defined(GNUSTEP)
{
    NSString* _title;
    NSString* _message;
    UIAlertControllerStyle _preferredStyle;
    NSMutableArray* _actions;
}
#endif

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle;

- (void)addAction:(UIAlertAction*)action;
@property (nonatomic, readonly) NSArray* actions;
@property (nonatomic, copy) NSString* title;
@property (nonatomic, copy) NSString* message;
@property (nonatomic, readonly) UIAlertControllerStyle preferredStyle;
@end
