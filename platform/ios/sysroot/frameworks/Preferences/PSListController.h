// A list of specifiers shown as a table. The framework is private.
#pragma once

#import <Preferences/PSViewController.h>

@interface PSListController : PSViewController <UITableViewDataSource, UITableViewDelegate> {
@protected
    /// Nil until they are loaded.
    NSArray* _specifiers;
#if defined(GNUSTEP)
@private
    CGSize _contentSize;
    UITableView* _table;
#endif
}

- (id)initForContentSize:(CGSize)contentSize;

/// Calls a subclass's -specifiers once. The subclass stores them in its instance variable.
- (NSArray*)specifiers;
- (NSArray*)loadSpecifiersFromPlistName:(NSString*)plistName target:(id)target;
/// Drops the specifiers, loads them again and shows them.
- (void)reloadSpecifiers;

- (UITableView*)table;

@end
