// A view controller of the Settings app. The framework is private.
#pragma once

#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>

@interface PSViewController : UIViewController
#if defined(GNUSTEP)
{
@private
    UIViewController* _rootController;
}
#endif

/// Not retained.
- (void)setRootController:(id)controller;
- (id)rootController;

- (id)readPreferenceValue:(PSSpecifier*)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;

/// The app enters the background.
- (void)suspend;

@end
