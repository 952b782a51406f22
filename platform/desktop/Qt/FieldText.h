// The text of a field that nobody edits, as a screen reader reads it.
#pragma once

#include <QAccessibleInterface>

namespace brimsound::desktop {

/// Reads along in the value of a text field's interface, which outlives this. There is neither caret nor
/// selection: they come with the field's editor.
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

    /// Nowhere: which character is where is the editor's to know.
    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override { }
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

private:
    const QAccessibleInterface& _field;
};

} // namespace brimsound::desktop
