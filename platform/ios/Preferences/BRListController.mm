#include "platform/ios/Preferences/BRListController.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"
#include "platform/ios/Preferences/NewController.h"
#include "platform/ios/UIKit/IndexPath.h"

using brimsound::ios::existingObjectOf;
using brimsound::ios::nativeOf;
using brimsound::ios::nativeValue;
using brimsound::ios::objectOf;
using brimsound::ios::ours;
using brimsound::ios::valueOf;

namespace {

/// The object that belongs to the controller, which has been initialised.
brimsound::PSListController& controllerOf(BRListController* native)
{
    return *existingObjectOf<brimsound::PSListController>(native);
}

} // namespace

@implementation BRListController

+ (brimsound::PSListController*)newController
{
    return nullptr;
}

- (id)initForContentSize:(CGSize)size
{
    auto* controller = existingObjectOf<brimsound::PSListController>(self);
    if (!controller)
        controller = brimsound::ios::newControllerFor(self);
    if (controller->initForContentSize(ours(size)))
        return self;
    [self release];
    return nil;
}

// Some versions of the Settings app know of no content size, and the framework comes by here in either case.
- (id)init
{
    return existingObjectOf(self) ? [super init] : [self initForContentSize:[[UIScreen mainScreen] bounds].size];
}

- (id)br_baseInitForContentSize:(CGSize)size
{
    return [super initForContentSize:size];
}

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

- (NSArray*)specifiers
{
    if (!_specifiers) {
        NSMutableArray* natives = [[NSMutableArray alloc] init];
        for (const auto& specifier : controllerOf(self).specifiers())
            [natives addObject:nativeOf(*specifier)];
        _specifiers = natives;
    }
    return _specifiers;
}

- (NSArray*)br_baseSpecifiers
{
    return [super specifiers];
}

- (void)reloadSpecifiers
{
    brimsound::ios::forgetSpecifiers(controllerOf(self));
    [super reloadSpecifiers];
}

- (void)suspend
{
    controllerOf(self).suspend();
}

- (void)br_baseSuspend
{
    [super suspend];
}

- (id)readPreferenceValue:(PSSpecifier*)specifier
{
    return nativeValue(controllerOf(self).readPreferenceValue(*objectOf<brimsound::PSSpecifier>(specifier)));
}

- (id)br_baseReadPreferenceValue:(PSSpecifier*)specifier
{
    return [super readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier
{
    controllerOf(self).setPreferenceValueSpecifier(
        valueOf(value).value_or(brimsound::PropertyList()), *objectOf<brimsound::PSSpecifier>(specifier));
}

- (void)br_baseSetPreferenceValue:(id)value specifier:(PSSpecifier*)specifier
{
    [super setPreferenceValue:value specifier:specifier];
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path
{
    const auto cell = controllerOf(self).tableViewCellForRowAtIndexPath(
        *objectOf<brimsound::UITableView>(table), ours(path));
    return [[nativeOf(cell.get()) retain] autorelease];
}

- (UITableViewCell*)br_baseTableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path
{
    return [super tableView:table cellForRowAtIndexPath:path];
}

- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path
{
    return controllerOf(self).tableViewHeightForRowAtIndexPath(
        *objectOf<brimsound::UITableView>(table), ours(path));
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path
{
    controllerOf(self).tableViewDidSelectRowAtIndexPath(
        *objectOf<brimsound::UITableView>(table), ours(path));
}

- (void)br_baseTableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path
{
    [super tableView:table didSelectRowAtIndexPath:path];
}

@end
