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

/// The base class of a preference bundle's pane. Shows a list of specifiers as a grouped table: groups with
/// header and footer, switches, buttons and links. A switch is read and written through its specifier's "get"
/// and "set" selectors, or through readPreferenceValue: and setPreferenceValue:specifier: when it names none.
/// A button or link sends its "action". A selector that the target does not implement does nothing; a switch
/// without a value shows its "default".
class PSListController : public NSObject, public UITableViewDataSource, public UITableViewDelegate {
public:
    using Specifiers = std::vector<RetainPtr<PSSpecifier>>;

    /// Prepares a new controller for a pane of that size in points. Returns the controller, or null when it
    /// cannot be used (on the desktop: when the size is invalid).
    virtual PSListController* initForContentSize(CGSize);

    /// The specifiers of the pane: groups and rows in the order of the list.
    virtual const Specifiers& specifiers();
    /// Reads the specifiers from the bundle's plist of that name. Labels and footers are translated by the
    /// strings table of the same name; a text that the table lacks is used unchanged. Empty when the plist
    /// cannot be read.
    Specifiers loadSpecifiersFromPlistNameTarget(const std::string& name, NSObject& target);

    /// The pane's table, created when it is first used.
    UITableView& table();

    virtual PropertyList readPreferenceValue(PSSpecifier&);
    virtual void setPreferenceValueSpecifier(const PropertyList& value, PSSpecifier&);

    /// The root controller of the app that shows the pane. Sheets are presented from it. Not owned.
    UIViewController& rootController() const;

    /// Called when the app enters the background.
    virtual void suspend();

    std::size_t numberOfSectionsInTableView(UITableView&) override;
    std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) override;
    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override;
    std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t section) override;
    std::string tableViewTitleForFooterInSection(UITableView&, std::size_t section) override;
    void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath&) override;

protected:
    /// `className` is the run-time name of the concrete class. The bundle is found by it.
    explicit PSListController(const std::string& className);
    ~PSListController() override;

    /// The specifiers; unset until they are loaded.
    std::optional<Specifiers> _specifiers;
};

} // namespace brimsound
