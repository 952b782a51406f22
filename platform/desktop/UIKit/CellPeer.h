// What stands behind a UITableViewCell.
#pragma once

#include "platform/UIKit/UITableViewCell.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <string>

namespace brimsound::desktop {

/// How a row stands among the others of its table.
struct RowSetting {
    /// The colour of the hairline at the row's foot.
    Color separator { 0, 0, 0, 0 };
    /// The group of rows that the row is part of, in the row's own coordinates, and the radius of its
    /// corners.
    CGRect group;
    double groupRadius = 0;

    bool operator==(const RowSetting&) const = default;
};

struct CellPeer : ViewPeer {
    std::string reuseIdentifier;
    RetainPtr<UIView> contentView;
    RetainPtr<UILabel> textLabel;
    /// Null in the default style.
    RetainPtr<UILabel> detailTextLabel;
    /// Null until somebody asks for it.
    RetainPtr<UIImageView> imageView;
    RetainPtr<UIView> accessoryView;
    RetainPtr<UIView> backgroundView;
    RetainPtr<UIView> selectedBackgroundView;
    UITableViewCellSelectionStyle selectionStyle = UITableViewCellSelectionStyle::Default;
    RowSetting setting;
    bool isSelected = false;
    bool isHighlighted = false;

    void drawAbove(Canvas&) const override;
    Accessible accessible() const override;

    UITableViewCell& cell() const { return static_cast<UITableViewCell&>(*view); }
    void setSetting(const RowSetting&);
    void setHighlighted(bool);
    /// Shows the row as it is: pressed, selected or neither.
    void showState(Animated);
    /// As a new cell is: neither pressed nor selected.
    void prepareForReuse();
    /// Puts the selected background view in while it is to be seen.
    void placeSelectedBackground();
    void placeContents() const;

private:
    void fadeSelectedBackground();

    bool _showsSelected = false;
    /// Counts changes of that, so that a new one ends the fade before.
    unsigned _change = 0;
};

CellPeer& peerOf(const UITableViewCell&);

/// Puts a view into a cell, at that place from the back.
void insertSubview(UITableViewCell&, UIView&, std::size_t place);

/// The grey that a row has while it is pressed or selected.
RetainPtr<UIView> makeSelectedBackground();

/// Has the cell lay itself out anew when the view is one of its own labels or its image view.
void rowContentsChanged(const UIView&);

/// The size of the cells that are made from now on: that of the row which a table is asking for. Without it a
/// cell would be laid out for some other width before it is ever seen.
void setSizeOfNewCells(CGSize);

} // namespace brimsound::desktop
