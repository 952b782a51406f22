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

/// A row of a table. Its own contents belong in the content view. The cell sizes that to the space that the
/// accessory leaves. Back to front: the background view, the selected background view while the row is
/// pressed or selected, the content view, the accessory.
class Cell : public View {
public:
    enum class Style {
        OneText,
        /// A line of text and a smaller one below it.
        Subtitle,
    };
    /// Cells with the same reuse identifier can replace each other.
    Cell(Style, std::string reuseIdentifier);

    const std::string& reuseIdentifier() const { return _reuseIdentifier; }
    View& content() const { return *_content; }
    Label& textLabel() const { return *_textLabel; }
    /// Null in the style OneText. While it is empty, the text label has the whole height.
    Label* detailLabel() const { return _detailLabel.get(); }
    /// Before the text. Created by the first call.
    ImageView& imageView();

    /// The view at the row's end, opposite to where the text starts; may be null.
    View* accessory() const { return _accessory.get(); }
    void setAccessory(Ref<View>);
    /// May be null.
    View* backgroundView() const { return _backgroundView.get(); }
    void setBackgroundView(Ref<View>);
    /// Initially a gray view. It is in the view tree while the row is pressed or selected. Null for a row
    /// that does not change its appearance then.
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
    /// Resets the cell to neither pressed nor selected.
    void prepareForReuse();

    const RowAppearance& appearance() const { return _appearance; }
    void setAppearance(const RowAppearance&);

    void layOut() override;
    void drawAbove(Canvas&) const override;
    /// A row in a list. A button in a grouped table, where rows perform actions.
    Role role() const override;
    bool isFocusable() const override { return true; }
    Accessible accessible() const override;
    bool activate() override;
    /// Asks the source of the table to delete the row. Returns false when a touch could not do so, or when
    /// the row cannot be deleted.
    bool deleteRow();

    /// The size of new cells, which a table sets to that of the row that it requests. Otherwise a cell would
    /// first be laid out with another width.
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
    /// Whether the row is drawn as pressed or selected.
    bool _looksSelected = false;
    Animation _fade;
};

} // namespace brimsound::toolkit
