#pragma once

#include "toolkit/text/TextField.h"

#include <QLineEdit>

namespace brimsound::desktop {

/// Covers the text of a focused text field with a Qt editor of the same appearance, for selection, clipboard,
/// undo and input methods. The parent widget handles Return, Escape and Tab.
class FieldEditor : public QLineEdit {
public:
    FieldEditor(QWidget& around, toolkit::TextField&);
    ~FieldEditor() override;

    const toolkit::TextField& field() const { return *_field; }

    /// Removes Qt's limit of 32,767 characters. Must be called after the editor has the focus: Qt reports the
    /// caret to screen readers then, and before the focus these would not name the field.
    void liftLengthLimit();

    /// Copies the text and its position from the field.
    void follow();
    /// Whether the editor draws the text. The field draws it while it moves or fades.
    bool isDrawing() const;
    /// Lets the field or the editor draw the text.
    void setFieldDraws(bool);

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    const toolkit::Ref<toolkit::TextField> _field;
};

} // namespace brimsound::desktop
