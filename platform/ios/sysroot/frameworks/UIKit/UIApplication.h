#pragma once

#import <UIKit/UIResponder.h>

@interface UIApplication : UIResponder
+ (UIApplication*)sharedApplication;
- (BOOL)canOpenURL:(NSURL*)url;
- (BOOL)openURL:(NSURL*)url;
@end
