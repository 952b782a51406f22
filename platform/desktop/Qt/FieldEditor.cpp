#include "platform/desktop/Qt/FieldEditor.h"

#include "platform/desktop/Qt/Fonts.h"
#include "platform/desktop/Qt/QtCanvas.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"

#include <QKeyEvent>

#include <limits>

namespace brimsound::desktop {

namespace {

/// What a line edit keeps free at either side of its text, in points.
constexpr double sideMargin = 2;

bool isMoving(const UIView& view)
{
    for (const auto* ancestor = &view; ancestor; ancestor = ancestor->superview()) {
        if (peerOf(*ancestor).animation)
            return true;
    }
    return false;
}

} // namespace

FieldEditor::FieldEditor(QWidget& around, UITextField& field)
    : QLineEdit(&around)
    , _field(retain(&field))
{
    auto& peer = peerOf(field);
    peer.hasEditor = true;
    setAccessibleName(QString::fromStdString(peer.accessibilityLabel));
    setFrame(false);
    if (peer.font)
        setFont(qFont(*peer.font));
    auto colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, qColor(colorOf(peer.textColor)));
    colors.setColor(QPalette::Highlight, qColor(theme::tint.withAlpha(0.3)));
    colors.setColor(QPalette::HighlightedText, qColor(colorOf(peer.textColor)));
    setPalette(colors);
    follow();
    connect(this, &QLineEdit::textChanged, this,
        [this](const QString& changed) { _field->setText(changed.toStdString()); });
}

FieldEditor::~FieldEditor()
{
    auto& peer = peerOf(*_field);
    peer.hasEditor = false;
    setNeedsDisplay(*_field);
}

void FieldEditor::liftLengthLimit()
{
    setMaxLength(std::numeric_limits<int>::max());
}

void FieldEditor::follow()
{
    const auto area = peerOf(*_field).textArea();
    const auto origin = convertToWindow(area.origin, *_field);
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
    peerOf(*_field).isDrawnByEditor = !draws;
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
