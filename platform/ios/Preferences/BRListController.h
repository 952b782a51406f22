#pragma once

#include "platform/Preferences/PSListController.h"

#import <Preferences/PSListController.h>

/// The peer of a list controller. Forwards the calls of the Settings app to the product's object. The native
/// class that the app instantiates derives from it and says which product class to create.
@interface BRListController : PSListController

/// Creates the product's object for a new native controller of this class. Its peer is the controller that is
/// being initialized.
+ (brimsound::PSListController*)newController;

// Calls of the product's object to its base class.
- (id)br_baseInitForContentSize:(CGSize)size;
- (NSArray*)br_baseSpecifiers;
- (void)br_baseSuspend;
- (id)br_baseReadPreferenceValue:(PSSpecifier*)specifier;
- (void)br_baseSetPreferenceValue:(id)value specifier:(PSSpecifier*)specifier;
- (UITableViewCell*)br_baseTableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path;
- (void)br_baseTableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path;

@end
