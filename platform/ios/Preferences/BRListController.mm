#include "platform/ios/Preferences/BRListController.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"
#include "platform/ios/Preferences/NewController.h"
#include "platform/ios/UIKit/IndexPath.h"
#include "platform/ios/UIKit/LightAppearance.h"

using brimsound::ios::existingObjectOf;
using brimsound::ios::nativeOf;
using brimsound::ios::nativeValue;
using brimsound::ios::objectOf;
using brimsound::ios::ours;
using brimsound::ios::valueOf;

namespace {

/// The product's object for the controller. Null while the superclass deallocates the controller; it may
/// still call methods then.
brimsound::PSListController* controllerOf(BRListController* native)
{
    return existingObjectOf<brimsound::PSListController>(native);
}

} // namespace

@implementation BRListController

+ (brimsound::PSListController*)newController
{
    return nullptr;
}

- (id)initForContentSize:(CGSize)size
{
    auto* controller = controllerOf(self);
    if (!controller)
        controller = brimsound::ios::newControllerFor(self);
    if (controller->initForContentSize(ours(size)))
        return self;
    [self release];
    return nil;
}

// Some versions of the Settings app call init without a content size. The framework's initForContentSize:
// calls it as well.
- (id)init
{
    return controllerOf(self) ? [super init] : [self initForContentSize:[[UIScreen mainScreen] bounds].size];
}

- (id)br_baseInitForContentSize:(CGSize)size
{
    return [PSListController instancesRespondToSelector:@selector(initForContentSize:)]
        ? [super initForContentSize:size]
        : [super init];
}

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

- (void)viewDidLoad
{
    [super viewDidLoad];
    brimsound::ios::keepLight([self view]);
}

- (NSArray*)specifiers
{
    auto* controller = controllerOf(self);
    if (!_specifiers && controller) {
        NSMutableArray* natives = [[NSMutableArray alloc] init];
        for (const auto& specifier : controller->specifiers())
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
    if (auto* controller = controllerOf(self))
        brimsound::ios::forgetSpecifiers(*controller);
    [super reloadSpecifiers];
}

- (void)suspend
{
    if (auto* controller = controllerOf(self))
        controller->suspend();
}

- (void)br_baseSuspend
{
    [super suspend];
}

- (id)readPreferenceValue:(PSSpecifier*)specifier
{
    auto* controller = controllerOf(self);
    if (!controller || !specifier)
        return nil;
    return nativeValue(controller->readPreferenceValue(*objectOf<brimsound::PSSpecifier>(specifier)));
}

- (id)br_baseReadPreferenceValue:(PSSpecifier*)specifier
{
    return [super readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier*)specifier
{
    auto* controller = controllerOf(self);
    if (controller && specifier)
        controller->setPreferenceValueSpecifier(
            valueOf(value).value_or(brimsound::PropertyList()), *objectOf<brimsound::PSSpecifier>(specifier));
}

- (void)br_baseSetPreferenceValue:(id)value specifier:(PSSpecifier*)specifier
{
    [super setPreferenceValue:value specifier:specifier];
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path
{
    auto* controller = controllerOf(self);
    if (!controller)
        return [super tableView:table cellForRowAtIndexPath:path];
    const auto cell
        = controller->tableViewCellForRowAtIndexPath(*objectOf<brimsound::UITableView>(table), ours(path));
    return [[nativeOf(cell.get()) retain] autorelease];
}

- (UITableViewCell*)br_baseTableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path
{
    return [super tableView:table cellForRowAtIndexPath:path];
}

- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path
{
    auto* controller = controllerOf(self);
    return controller
        ? controller->tableViewHeightForRowAtIndexPath(*objectOf<brimsound::UITableView>(table), ours(path))
        : 0;
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path
{
    if (auto* controller = controllerOf(self))
        controller->tableViewDidSelectRowAtIndexPath(*objectOf<brimsound::UITableView>(table), ours(path));
}

- (void)br_baseTableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path
{
    [super tableView:table didSelectRowAtIndexPath:path];
}

@end
