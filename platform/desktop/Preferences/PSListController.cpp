#include "platform/Preferences/PSListController.h"

#include "platform/Foundation/NSBundle.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/Preferences/RootController.h"
#include "platform/desktop/Preferences/SpecifierCell.h"

#include <algorithm>
#include <cmath>

namespace brimsound {

using namespace desktop;

namespace {

struct ListController : toolkit::Object {
    explicit ListController(std::string name)
        : className(std::move(name))
    {
    }

    const std::string className;
    CGSize contentSize;
    RetainPtr<UITableView> table;
    UIViewController* rootController = nullptr;
};

ListController& native(const PSListController& controller)
{
    return desktop::nativeOf<ListController>(controller);
}

/// The specifiers of one section. Rows before the first group form a section without header and footer.
struct Section {
    PSSpecifier* group = nullptr;
    std::vector<PSSpecifier*> rows;
};

std::vector<Section> sectionsOf(const PSListController::Specifiers& specifiers)
{
    std::vector<Section> sections;
    for (const auto& specifier : specifiers) {
        if (isOfType(*specifier, groupCellType)) {
            sections.push_back({ specifier.get(), {} });
        } else {
            if (sections.empty())
                sections.emplace_back();
            sections.back().rows.push_back(specifier.get());
        }
    }
    return sections;
}

} // namespace

PSListController::PSListController(const std::string& className)
    : NSObject(desktop::peer(new ListController(className)))
{
}

PSListController::~PSListController()
{
    // The presentation may keep the table longer than its controller exists.
    if (const auto& table = native(*this).table) {
        table->setDataSource(nullptr);
        table->setDelegate(nullptr);
    }
}

PSListController* PSListController::initForContentSize(CGSize size)
{
    const auto isLength = [](CGFloat length) { return std::isfinite(length) && length >= 0; };
    if (!isLength(size.width) || !isLength(size.height))
        return nullptr;
    native(*this).contentSize = size;
    return this;
}

const PSListController::Specifiers& PSListController::specifiers()
{
    if (!_specifiers)
        _specifiers.emplace();
    return *_specifiers;
}

PSListController::Specifiers PSListController::loadSpecifiersFromPlistNameTarget(
    const std::string& name, NSObject& target)
{
    const auto bundle = NSBundle::bundleForClass(native(*this).className);
    const auto path = bundle.pathForResource(name, "plist");
    const auto plist = path ? readPropertyListFile(*path) : std::nullopt;
    const auto* root = plist ? plist->asDictionary() : nullptr;
    const auto* items = root ? arrayForKey(*root, "items") : nullptr;
    if (!items)
        return {};

    Specifiers specifiers;
    for (const auto& item : *items) {
        const auto* properties = item.asDictionary();
        if (!properties)
            continue;
        auto localized = *properties;
        for (const auto* key : { "label", "footerText" }) {
            if (const auto* text = stringForKey(localized, key))
                localized.set(key, bundle.localizedStringForKey(*text, *text, name));
        }
        const auto* label = stringForKey(localized, "label");
        specifiers.push_back(make<PSSpecifier>(label ? *label : std::string(), target, localized));
    }
    return specifiers;
}

UITableView& PSListController::table()
{
    auto& self = native(*this);
    if (!self.table) {
        self.table = make<UITableView>(CGRect { {}, self.contentSize }, UITableViewStyle::Grouped);
        self.table->setDataSource(this);
        self.table->setDelegate(this);
    }
    return *self.table;
}

UIViewController& PSListController::rootController() const
{
    return *native(*this).rootController;
}

void desktop::setRootController(PSListController& controller, UIViewController& root)
{
    native(controller).rootController = &root;
}

NSIndexPath desktop::indexPathOf(PSListController& controller, const PSSpecifier& specifier)
{
    NSIndexPath path;
    for (const auto& section : sectionsOf(controller.specifiers())) {
        const auto found = std::ranges::find(section.rows, &specifier);
        path.row = static_cast<std::size_t>(found - section.rows.begin());
        if (found != section.rows.end())
            break;
        ++path.section;
    }
    return path;
}

PropertyList PSListController::readPreferenceValue(PSSpecifier& specifier)
{
    return specifier.propertyForKey("default");
}

void PSListController::setPreferenceValueSpecifier(const PropertyList&, PSSpecifier&) { }

void PSListController::suspend() { }

std::size_t PSListController::numberOfSectionsInTableView(UITableView&)
{
    return sectionsOf(specifiers()).size();
}

std::size_t PSListController::tableViewNumberOfRowsInSection(UITableView&, std::size_t section)
{
    return sectionsOf(specifiers())[section].rows.size();
}

RetainPtr<UITableViewCell> PSListController::tableViewCellForRowAtIndexPath(
    UITableView& table, const NSIndexPath& indexPath)
{
    auto& specifier = *sectionsOf(specifiers())[indexPath.section].rows[indexPath.row];
    const auto type = stringProperty(specifier, "cell");
    auto cell = table.dequeueReusableCellWithIdentifier(type);
    if (!cell)
        cell = make<SpecifierCell>(type, *this);
    static_cast<SpecifierCell&>(*cell).show(specifier);
    return cell;
}

std::string PSListController::tableViewTitleForHeaderInSection(UITableView&, std::size_t section)
{
    const auto* group = sectionsOf(specifiers())[section].group;
    return group ? group->name() : std::string();
}

std::string PSListController::tableViewTitleForFooterInSection(UITableView&, std::size_t section)
{
    const auto* group = sectionsOf(specifiers())[section].group;
    return group ? stringProperty(*group, "footerText") : std::string();
}

void PSListController::tableViewDidSelectRowAtIndexPath(UITableView& table, const NSIndexPath& indexPath)
{
    if (auto* cell = table.cellForRowAtIndexPath(indexPath))
        cell->setSelected(false, Animated::Yes);
    auto& specifier = *sectionsOf(specifiers())[indexPath.section].rows[indexPath.row];
    const auto* action = specifier.target().methodForSelector(stringProperty(specifier, "action"));
    const Argument argument = static_cast<NSObject*>(&specifier);
    if (action)
        action->invoke(specifier.target(), { &argument, 1 });
}

} // namespace brimsound
