// The rows of a table.
#pragma once

#include "platform/UIKit/UILabel.h"

#include <string>

namespace brimsound {

enum class UITableViewCellStyle {
    Default = 0,
};

enum class UITableViewCellSelectionStyle {
    None = 0,
    Default = 3,
};

/// One row. Whatever a row shows of its own belongs into the content view, which the cell sizes to what the
/// accessory view leaves free.
class UITableViewCell : public UIView {
public:
    /// initWithStyle:reuseIdentifier:
    UITableViewCell(UITableViewCellStyle, const std::string& reuseIdentifier);

    const std::string& reuseIdentifier() const;
    UIView& contentView() const;
    UILabel& textLabel() const;

    /// The view at the row's right end; null for none.
    UIView* accessoryView() const;
    void setAccessoryView(RetainPtr<UIView>);

    UITableViewCellSelectionStyle selectionStyle() const;
    void setSelectionStyle(UITableViewCellSelectionStyle);

    /// Sizes the content view and the accessory view.
    void layoutSubviews() override;

protected:
    explicit UITableViewCell(Peer*);
};

} // namespace brimsound
