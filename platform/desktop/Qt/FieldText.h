#pragma once

#include <QAccessibleInterface>

namespace brimsound::desktop {

/// The text of a text field without an editor, for screen readers: the value of `field`, which must outlive
/// this object. It has no caret and no selection; an editor has.
class FieldText : public QAccessibleTextInterface {
public:
    explicit FieldText(const QAccessibleInterface& field)
        : _field(field)
    {
    }

    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;

    int selectionCount() const override { return 0; }
    void selection(int, int* startOffset, int* endOffset) const override { *startOffset = *endOffset = 0; }
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return characterCount(); }
    void setCursorPosition(int) override { }

    /// Empty, because only the editor knows the positions of characters.
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

private:
    const QAccessibleInterface& _field;
};

} // namespace brimsound::desktop
