// The peer of a list controller.
#pragma once

#include "platform/Preferences/PSListController.h"

#import <Preferences/PSListController.h>

/// Hands what the Settings app asks of a list controller to an object of ours. The native class that the app
/// is to instantiate derives from it, and says which of our classes that is.
@interface BRListController : PSListController

/// The object that belongs to a new native controller of this class. Its peer is the controller that is being
/// made.
+ (brimsound::PSListController*)newController;

// What our object asks of its base class.
- (id)br_baseInitForContentSize:(CGSize)size;
- (NSArray*)br_baseSpecifiers;
- (void)br_baseSuspend;
- (id)br_baseReadPreferenceValue:(PSSpecifier*)specifier;
- (void)br_baseSetPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
- (UITableViewCell*)br_baseTableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path;
- (void)br_baseTableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path;

@end
