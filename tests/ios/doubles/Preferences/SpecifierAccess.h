// What a list and its cells do with a specifier.
#pragma once

#import <Preferences/PSSpecifier.h>

@interface PSSpecifier (Access)

- (PSCellType)cellType;

/// Each sends the target the specifier's selector. A target that does not answer it has the default value,
/// takes none, and does nothing.
- (id)performGetter;
- (void)performSetterWithValue:(id)value;
- (void)performAction;

@end
