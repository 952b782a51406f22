#pragma once

#import <UIKit/UIResponder.h>

@class UIWindow;

@interface UIApplication : UIResponder
+ (UIApplication*)sharedApplication;
@property (nonatomic, readonly) UIWindow* keyWindow;
- (BOOL)canOpenURL:(NSURL*)url;
- (BOOL)openURL:(NSURL*)url;
@end
