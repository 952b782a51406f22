#pragma once

#include "platform/Preferences/PSListController.h"
#include "platform/UIKit/UITableViewCell.h"
#include "toolkit/control/Switch.h"

#include <string>

namespace brimsound::desktop {

/// The value of the "cell" property that begins a group.
inline constexpr auto groupCellType = "PSGroupCell";
inline constexpr auto switchCellType = "PSSwitchCell";
inline constexpr auto buttonCellType = "PSButtonCell";
inline constexpr auto linkCellType = "PSLinkCell";

/// The string under the key; empty when there is none.
std::string stringProperty(const PSSpecifier&, std::string_view key);
bool isOfType(const PSSpecifier&, std::string_view cellType);

/// The row of one of the controller's specifiers other than a group.
NSIndexPath indexPathOf(PSListController&, const PSSpecifier&);

/// The value that a switch row shows: the getter's result, or the default without one.
PropertyList currentValue(PSListController&, PSSpecifier&);

/// A row made from a specifier. Cells are reused for specifiers of the same type.
class SpecifierCell : public UITableViewCell {
public:
    SpecifierCell(const std::string& cellType, PSListController&);

    /// Shows the specifier: its label and, for a switch, the current value from its getter.
    void show(PSSpecifier&);

    /// The switch of a switch row, otherwise null.
    toolkit::Switch* toggle() const { return _toggle.get(); }

private:
    PSListController& _controller;
    RetainPtr<PSSpecifier> _specifier;
    toolkit::Ref<toolkit::Switch> _toggle;
};

} // namespace brimsound::desktop
