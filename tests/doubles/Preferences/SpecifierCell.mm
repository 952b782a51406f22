#import "tests/doubles/Preferences/SpecifierCell.h"

#import "tests/doubles/Preferences/SpecifierAccess.h"

@implementation SpecifierCell

- (void)dealloc
{
    [_specifier release];
    [super dealloc];
}

- (void)showSpecifier:(PSSpecifier*)specifier
{
    [specifier retain];
    [_specifier release];
    _specifier = specifier;
    [[self textLabel] setText:[specifier name]];

    const bool isSwitch = [specifier cellType] == PSSwitchCell;
    if (isSwitch && ![self accessoryView]) {
        UISwitch* toggle = [[UISwitch alloc] initWithFrame:CGRectMake(0, 0, 0, 0)];
        [toggle addTarget:self action:@selector(toggled:) forControlEvents:UIControlEventValueChanged];
        [self setAccessoryView:toggle];
        [toggle release];
    }
    if (isSwitch)
        [(UISwitch*)[self accessoryView] setOn:[[specifier performGetter] boolValue] animated:NO];
    const bool isTapped = [specifier cellType] == PSButtonCell || [specifier cellType] == PSLinkCell;
    [self setSelectionStyle:isTapped ? UITableViewCellSelectionStyleDefault
                                     : UITableViewCellSelectionStyleNone];
}

- (void)toggled:(UISwitch*)toggle
{
    [_specifier performSetterWithValue:[NSNumber numberWithBool:[toggle isOn]]];
}

@end
