#include "platform/Preferences/PSListController.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Foundation/PropertyListConversion.h"
#include "platform/ios/Preferences/BRListController.h"
#include "platform/ios/Preferences/NewController.h"
#include "platform/ios/UIKit/IndexPath.h"

#include <utility>

namespace brimsound {

using ios::objectOf;
using ios::retainedObjectOf;

namespace {

/// The native controller for which a product object is being created; nil when the product object creates its
/// own.
BRListController* awaitingObject = nil;

BRListController* nativeOf(const PSListController& controller)
{
    return ios::nativeOf(controller);
}

Peer* takePeer(const std::string& className)
{
    id native = std::exchange(awaitingObject, nil);
    return ios::peer(native ? native : [NSClassFromString(ios::nativeText(className)) alloc]);
}

PSListController::Specifiers objectsOf(::NSArray* natives)
{
    PSListController::Specifiers specifiers;
    for (::PSSpecifier* native in natives)
        specifiers.push_back(retainedObjectOf<PSSpecifier>(native));
    return specifiers;
}

/// Gives access to the protected list of specifiers.
struct Heir : PSListController {
    static constexpr auto list = &Heir::_specifiers;
};

} // namespace

PSListController* ios::newControllerFor(BRListController* native)
{
    awaitingObject = native;
    return [[native class] newController];
}

void ios::forgetSpecifiers(PSListController& controller)
{
    (controller.*Heir::list).reset();
}

PSListController::PSListController(const std::string& className)
    : NSObject(takePeer(className))
{
}

PSListController::~PSListController() = default;

PSListController* PSListController::initForContentSize(CGSize size)
{
    ios::answerSelectors(*this);
    // A native initializer that fails releases the caller's reference; the product's leaves it to the caller.
    BRListController* native = [nativeOf(*this) retain];
    if (![native br_baseInitForContentSize:ios::native(size)])
        return nullptr;
    [native release];
    return this;
}

const PSListController::Specifiers& PSListController::specifiers()
{
    if (!_specifiers)
        _specifiers = objectsOf([nativeOf(*this) br_baseSpecifiers]);
    return *_specifiers;
}

PSListController::Specifiers PSListController::loadSpecifiersFromPlistNameTarget(
    const std::string& name, NSObject& target)
{
    ios::answerSelectors(target);
    return objectsOf([nativeOf(*this) loadSpecifiersFromPlistName:ios::nativeText(name)
                                                           target:ios::nativeOf(target)]);
}

UITableView& PSListController::table()
{
    // The table is created with the view.
    [nativeOf(*this) view];
    return *objectOf<UITableView>([nativeOf(*this) table]);
}

UIViewController& PSListController::rootController() const
{
    id root = [nativeOf(*this) rootController];
    // The app may not have set a root controller. A controller that is not shown presents nothing.
    return *objectOf<UIViewController>(root ? root : [[[::UIViewController alloc] init] autorelease]);
}

PropertyList PSListController::readPreferenceValue(PSSpecifier& specifier)
{
    id value = [nativeOf(*this) br_baseReadPreferenceValue:ios::nativeOf(specifier)];
    return ios::valueOf(value).value_or(PropertyList());
}

void PSListController::setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier& specifier)
{
    [nativeOf(*this) br_baseSetPreferenceValue:ios::nativeValue(value) specifier:ios::nativeOf(specifier)];
}

void PSListController::suspend()
{
    [nativeOf(*this) br_baseSuspend];
}

std::size_t PSListController::numberOfSectionsInTableView(UITableView& table)
{
    return static_cast<std::size_t>([nativeOf(*this) numberOfSectionsInTableView:ios::nativeOf(table)]);
}

std::size_t PSListController::tableViewNumberOfRowsInSection(UITableView& table, std::size_t section)
{
    return static_cast<std::size_t>([nativeOf(*this) tableView:ios::nativeOf(table)
                                         numberOfRowsInSection:static_cast<NSInteger>(section)]);
}

RetainPtr<UITableViewCell> PSListController::tableViewCellForRowAtIndexPath(
    UITableView& table, const NSIndexPath& path)
{
    return retainedObjectOf<UITableViewCell>([nativeOf(*this) br_baseTableView:ios::nativeOf(table)
                                                         cellForRowAtIndexPath:ios::native(path)]);
}

std::string PSListController::tableViewTitleForHeaderInSection(UITableView& table, std::size_t section)
{
    return ios::textOf([nativeOf(*this) tableView:ios::nativeOf(table)
                          titleForHeaderInSection:static_cast<NSInteger>(section)]);
}

std::string PSListController::tableViewTitleForFooterInSection(UITableView& table, std::size_t section)
{
    return ios::textOf([nativeOf(*this) tableView:ios::nativeOf(table)
                          titleForFooterInSection:static_cast<NSInteger>(section)]);
}

void PSListController::tableViewDidSelectRowAtIndexPath(UITableView& table, const NSIndexPath& path)
{
    [nativeOf(*this) br_baseTableView:ios::nativeOf(table) didSelectRowAtIndexPath:ios::native(path)];
}

} // namespace brimsound
