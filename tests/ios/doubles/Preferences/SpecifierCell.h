// A row of a list of specifiers.
#pragma once

#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>

/// Shows the label of its specifier, and a switch for one that is a switch.
@interface SpecifierCell : UITableViewCell {
    PSSpecifier* _specifier;
}

- (void)showSpecifier:(PSSpecifier*)specifier;

@end
