// The rows of a table.
#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

#include <string>

namespace brimsound {

enum class UITableViewCellStyle {
    /// One text.
    Default = 0,
    /// A text and a smaller one below it.
    Subtitle = 3,
};

enum class UITableViewCellSelectionStyle {
    /// The row cannot be pressed or selected.
    None = 0,
    Default = 3,
};

/// What the user wants done to a row.
enum class UITableViewCellEditingStyle {
    None = 0,
    Delete = 1,
};

/// One row. Whatever a row shows of its own belongs into the content view, which the cell sizes to what the
/// accessory view leaves free. Back to front: the background view, the selected background view while the row
/// is pressed or selected, the content view, the accessory view.
class UITableViewCell : public UIView {
public:
    /// initWithStyle:reuseIdentifier:
    UITableViewCell(UITableViewCellStyle, const std::string& reuseIdentifier);

    std::string reuseIdentifier() const;
    UIView& contentView() const;
    UILabel& textLabel() const;
    /// The text below; null in the default style. While it is empty, the text label has the whole height.
    UILabel* detailTextLabel() const;
    /// At the row's left end; without an image it takes no room.
    UIImageView& imageView() const;

    /// The view at the row's right end; null for none.
    UIView* accessoryView() const;
    void setAccessoryView(RetainPtr<UIView>);

    /// The cell sizes it to its bounds; null (as at first) for none.
    UIView* backgroundView() const;
    void setBackgroundView(RetainPtr<UIView>);
    /// At first a view in the platform's own gray, or in the background color that it is given. The cell
    /// holds it apart, and puts it into the view tree, sized to its bounds, while the row is pressed or
    /// selected; null for a row that then looks as ever.
    UIView* selectedBackgroundView() const;
    void setSelectedBackgroundView(RetainPtr<UIView>);

    /// While a row is pressed or selected, the labels and image views in its content view are highlighted.
    /// A tap selects a row until it is set to be not selected or another one is tapped. Setting tells no
    /// delegate.
    bool isSelected() const;
    void setSelected(bool, Animated);
    /// Whether the row is pressed.
    bool isHighlighted() const;

    UITableViewCellSelectionStyle selectionStyle() const;
    void setSelectionStyle(UITableViewCellSelectionStyle);

    /// Sizes the backgrounds, the content view and the accessory view, and places the cell's own texts and
    /// image.
    void layoutSubviews() override;

protected:
    explicit UITableViewCell(Peer*);
};

} // namespace brimsound
