// A list of specifiers as a table. The framework is private.
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

/// Asks a subclass's -specifiers once, which keeps them in its ivar.
- (NSArray*)specifiers;
- (NSArray*)loadSpecifiersFromPlistName:(NSString*)plistName target:(id)target;
/// Lets go of the specifiers, asks for them anew and shows them.
- (void)reloadSpecifiers;

- (UITableView*)table;

@end
