// Calls of a specifier's selectors.
#pragma once

#import <Preferences/PSSpecifier.h>

@interface PSSpecifier (Access)

- (PSCellType)cellType;

/// Each sends the specifier's selector to the target. When the target does not implement it, the getter
/// returns the default value, and the setter and the action do nothing.
- (id)performGetter;
- (void)performSetterWithValue:(id)value;
- (void)performAction;

@end
