// The desktop's own editing of a text field.
#pragma once

#include "toolkit/text/TextField.h"

#include <QLineEdit>

namespace brimsound::desktop {

/// Lies over the text of a field while that is edited, looks like it, and brings what a user expects of a
/// desktop's text field: a selection, the clipboard, undo, input methods. What Return, Escape and Tab mean is
/// up to the widget around it.
class FieldEditor : public QLineEdit {
public:
    FieldEditor(QWidget& around, toolkit::TextField&);
    ~FieldEditor() override;

    const toolkit::TextField& field() const { return *_field; }

    /// Lets more be typed than Qt's 32,767 characters. Qt tells readers of the caret then: one that hears of
    /// it before the editor has the keyboard does not say what the field is.
    void liftLengthLimit();

    /// Takes over the text's place and the text, as the field has them now.
    void follow();
    /// Whether the editor shows the text. While the field moves or fades it shows the text itself.
    bool isDrawing() const;
    /// Leaves the drawing of the text to the editor, or to the field.
    void setFieldDraws(bool);

protected:
    void paintEvent(QPaintEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

private:
    const toolkit::Ref<toolkit::TextField> _field;
};

} // namespace brimsound::desktop
