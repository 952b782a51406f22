#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

#include <string>

namespace brimsound {

enum class UITableViewCellStyle {
    /// One line of text.
    Default = 0,
    /// A line of text and a smaller one below it.
    Subtitle = 3,
};

enum class UITableViewCellSelectionStyle {
    /// The row cannot be pressed or selected.
    None = 0,
    Default = 3,
};

/// The change that the user asks for.
enum class UITableViewCellEditingStyle {
    None = 0,
    Delete = 1,
};

/// One row of a table. A row's own contents belong in the content view. The cell sizes it to the space that
/// the accessory view leaves. Back to front: the background view, the selected background view while the row
/// is pressed or selected, the content view, the accessory view.
class UITableViewCell : public UIView {
public:
    /// initWithStyle:reuseIdentifier:
    UITableViewCell(UITableViewCellStyle, const std::string& reuseIdentifier);

    std::string reuseIdentifier() const;
    UIView& contentView() const;
    UILabel& textLabel() const;
    /// The second line; null in the default style. While it is empty, the text label has the whole height.
    UILabel* detailTextLabel() const;
    /// At the row's left end. Takes no space without an image.
    UIImageView& imageView() const;

    /// The view at the row's right end; may be null.
    UIView* accessoryView() const;
    void setAccessoryView(RetainPtr<UIView>);

    /// The cell sizes it to its bounds. Null (the initial value) for none.
    UIView* backgroundView() const;
    void setBackgroundView(RetainPtr<UIView>);
    /// Initially a view in the platform's gray, or in the background color that the view was given. It is in
    /// the view tree, sized to the cell's bounds, only while the row is pressed or selected. Null for a row
    /// that does not change its appearance.
    UIView* selectedBackgroundView() const;
    void setSelectedBackgroundView(RetainPtr<UIView>);

    /// While a row is pressed or selected, the labels and image views in its content view are highlighted. A
    /// tapped row stays selected until this is set to false or another row is tapped. The setter calls no
    /// delegate.
    bool isSelected() const;
    void setSelected(bool, Animated);
    /// Whether the row is pressed.
    bool isHighlighted() const;

    UITableViewCellSelectionStyle selectionStyle() const;
    void setSelectionStyle(UITableViewCellSelectionStyle);

    /// Sizes the backgrounds, the content view and the accessory view, and places the cell's own labels and
    /// image.
    void layoutSubviews() override;

protected:
    explicit UITableViewCell(Peer*);
};

} // namespace brimsound
