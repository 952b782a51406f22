#import <Preferences/PSViewController.h>

@implementation PSViewController

- (void)setRootController:(id)controller
{
    _rootController = controller;
}

- (id)rootController
{
    return _rootController;
}

- (id)readPreferenceValue:(PSSpecifier*)specifier
{
    return [specifier propertyForKey:@"default"];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier
{
}

- (void)suspend
{
}

@end
