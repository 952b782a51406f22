// The list controller that a preference bundle's pane derives from.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSObject.h"
#include "platform/Preferences/PSSpecifier.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UIViewController.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound {

/// Shows a list of specifiers as a grouped table: groups with header and footer, switches, buttons and links.
/// A switch is read and written by its specifier's "get" and "set" selectors, readPreferenceValue: and
/// setPreferenceValue:specifier: when it names none; a button or link sends its "action". A selector that the
/// target does not answer does nothing, and a switch without an answer shows its "default".
class PSListController : public NSObject, public UITableViewDataSource, public UITableViewDelegate {
public:
    using Specifiers = std::vector<RetainPtr<PSSpecifier>>;

    /// Prepares a new controller for a pane of that size in points. Returns the controller, or null when it
    /// cannot be used (on the desktop: for a size that is no size).
    virtual PSListController* initForContentSize(CGSize);

    /// The specifiers of the pane, groups and rows in the order of the list.
    virtual const Specifiers& specifiers();
    /// Reads the items of the bundle's specifier plist of that name. Labels and footers are looked up in the
    /// strings table of the same name and stand for themselves when it lacks them. Empty when the plist
    /// cannot be read.
    Specifiers loadSpecifiersFromPlistNameTarget(const std::string& name, NSObject& target);

    /// The pane's table, made when it is first asked for.
    UITableView& table();

    virtual PropertyList readPreferenceValue(PSSpecifier&);
    virtual void setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier&);

    /// The controller at the root of the app that shows the pane, from which sheets are presented; not owned.
    UIViewController& rootController() const;

    /// Called when the app goes to the background.
    virtual void suspend();

    std::size_t numberOfSectionsInTableView(UITableView&) override;
    std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) override;
    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t section) override;
    std::string tableViewTitleForFooterInSection(UITableView&, std::size_t section) override;
    void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath&) override;

protected:
    /// `className` is the run-time name of the concrete class, by which its bundle is found.
    explicit PSListController(const std::string& className);
    ~PSListController() override;

    /// The specifier list; unset until it is loaded.
    std::optional<Specifiers> _specifiers;
};

} // namespace brimsound
