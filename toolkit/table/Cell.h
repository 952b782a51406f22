// The rows of a table.
#pragma once

#include "toolkit/image/ImageView.h"
#include "toolkit/table/RowAppearance.h"
#include "toolkit/table/RowPath.h"
#include "toolkit/text/Label.h"
#include "toolkit/time/Animation.h"

#include <optional>
#include <string>

namespace brimsound::toolkit {

class Table;

/// One row. Whatever it shows of its own belongs into the content view, which the cell sizes to what the
/// accessory leaves free. Back to front: the background, the selected background while the row is pressed or
/// selected, the content, the accessory.
class Cell : public View {
public:
    enum class Style {
        OneText,
        /// A text and a smaller one below it.
        Subtitle,
    };
    /// Cells that were made with the same reuse identifier stand in for one another.
    Cell(Style, std::string reuseIdentifier);

    const std::string& reuseIdentifier() const { return _reuseIdentifier; }
    View& content() const { return *_content; }
    Label& textLabel() const { return *_textLabel; }
    /// Null in the style of one text. While it is empty, the text label has the whole height.
    Label* detailLabel() const { return _detailLabel.get(); }
    /// At the row's left end; made when it is first asked for.
    ImageView& imageView();

    /// The view at the row's right end; null for none.
    View* accessory() const { return _accessory.get(); }
    void setAccessory(Ref<View>);
    /// Null for none.
    View* backgroundView() const { return _backgroundView.get(); }
    void setBackgroundView(Ref<View>);
    /// At first a gray view. In the tree while the row is pressed or selected; null for a row that then looks
    /// as ever.
    View* selectedBackgroundView() const { return _selectedBackgroundView.get(); }
    void setSelectedBackgroundView(Ref<View>);

    /// Whether the row can be pressed and selected.
    bool isSelectable() const { return _selectable; }
    void setSelectable(bool selectable) { _selectable = selectable; }
    bool isSelected() const { return _selected; }
    void setSelected(bool, bool animated);
    /// Whether the row is pressed.
    bool isHighlighted() const { return _highlighted; }
    void setHighlighted(bool);
    /// Makes the cell neither pressed nor selected, as a new one is.
    void prepareForReuse();

    const RowAppearance& appearance() const { return _appearance; }
    void setAppearance(const RowAppearance&);

    void layOut() override;
    void drawAbove(Canvas&) const override;
    /// A row of a list; a button in a grouped table, where rows do things.
    Role role() const override;
    bool isFocusable() const override { return true; }
    Accessible accessible() const override;
    bool activate() override;
    /// Has the row deleted. False when a finger could not touch it, or it cannot be deleted.
    bool deleteRow();

    /// The size of the cells that are made from now on: that of the row which a table is asking for. Without
    /// it a cell would be laid out for some other width before it is ever seen.
    static void setSizeOfNewCells(Size);

protected:
    ~Cell() override;

private:
    Table* table() const;
    std::optional<RowPath> row() const;
    void showState(bool animated);
    void placeSelectedBackground();
    void fadeSelectedBackground();
    void placeContents();

    const std::string _reuseIdentifier;
    Ref<View> _content;
    Ref<Label> _textLabel;
    Ref<Label> _detailLabel;
    Ref<ImageView> _imageView;
    Ref<View> _accessory;
    Ref<View> _backgroundView;
    Ref<View> _selectedBackgroundView;
    RowAppearance _appearance;
    bool _selectable = true;
    bool _selected = false;
    bool _highlighted = false;
    /// Whether the row looks pressed or selected.
    bool _looksSelected = false;
    Animation _fade;
};

} // namespace brimsound::toolkit
