#pragma once

#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>

/// A row that shows the label of its specifier, and a switch if the specifier is one.
@interface SpecifierCell : UITableViewCell {
    PSSpecifier* _specifier;
}

- (void)showSpecifier:(PSSpecifier*)specifier;

@end
