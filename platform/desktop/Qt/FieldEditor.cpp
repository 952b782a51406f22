#include "platform/desktop/Qt/FieldEditor.h"

#include "platform/desktop/Qt/Fonts.h"
#include "platform/desktop/Qt/QtCanvas.h"
#include "toolkit/drawing/Theme.h"

#include <QKeyEvent>

#include <limits>

namespace brimsound::desktop {

namespace {

/// The horizontal margin of the text in a line edit, in points.
constexpr double sideMargin = 2;

bool isMoving(const toolkit::View& view)
{
    for (const auto* ancestor = &view; ancestor; ancestor = ancestor->parent()) {
        if (ancestor->isMoving())
            return true;
    }
    return false;
}

} // namespace

FieldEditor::FieldEditor(QWidget& around, toolkit::TextField& field)
    : QLineEdit(&around)
    , _field(toolkit::keep(&field))
{
    field.setEditor(toolkit::TextField::Editor::Hidden);
    setAccessibleName(QString::fromStdString(field.label()));
    setFrame(false);
    const auto side = field.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    if (field.font())
        setFont(qFont(*field.font()));
    auto colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, qColor(field.color()));
    colors.setColor(QPalette::Highlight, qColor(toolkit::theme::tint.withAlpha(0.3)));
    colors.setColor(QPalette::HighlightedText, qColor(field.color()));
    setPalette(colors);
    follow();
    connect(this, &QLineEdit::textChanged, this,
        [this](const QString& changed) { _field->setText(changed.toStdString()); });
}

FieldEditor::~FieldEditor()
{
    _field->setEditor(toolkit::TextField::Editor::None);
}

void FieldEditor::liftLengthLimit()
{
    setMaxLength(std::numeric_limits<int>::max());
}

void FieldEditor::follow()
{
    const auto area = _field->textArea();
    const auto origin = _field->toWindow(area.origin);
    setGeometry(QRectF(origin.x, origin.y, area.size.width, area.size.height)
                    .adjusted(-sideMargin, 0, sideMargin, 0)
                    .toRect());
    const auto now = QString::fromStdString(_field->text());
    if (text() != now)
        setText(now);
}

bool FieldEditor::isDrawing() const
{
    return !isMoving(*_field);
}

void FieldEditor::setFieldDraws(bool draws)
{
    using Editor = toolkit::TextField::Editor;
    _field->setEditor(draws ? Editor::Hidden : Editor::Showing);
}

void FieldEditor::paintEvent(QPaintEvent* event)
{
    if (isDrawing())
        QLineEdit::paintEvent(event);
}

void FieldEditor::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        event->ignore();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace brimsound::desktop
