#include "platform/desktop/Qt/PaneWidget.h"

#include "platform/desktop/Qt/QtCanvas.h"
#include "platform/desktop/UIKit/Screen.h"

#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QTouchEvent>
#include <QUrl>
#include <QWheelEvent>

#include <optional>

namespace brimsound::desktop {

using toolkit::Key, toolkit::KeyStroke, toolkit::Point, toolkit::Pointer;

namespace {

/// The distance that one notch of a wheel scrolls, in points.
constexpr double notchDistance = 60;
/// The wheel's angle for one notch, in Qt's unit of 1/8 degree.
constexpr double notchAngle = 120;

Point toolkitPoint(QPointF point)
{
    return { point.x(), point.y() };
}

// Whether Qt created the mouse event from a touch, which was already handled.
bool isMadeUp(const QMouseEvent& event)
{
    return event.source() != Qt::MouseEventNotSynthesized;
}

std::optional<Key> keyOf(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Tab:
        return Key::Tab;
    case Qt::Key_Backtab:
        return Key::Backtab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Key::Return;
    case Qt::Key_Space:
        return Key::Space;
    case Qt::Key_Escape:
        return Key::Escape;
    case Qt::Key_Left:
        return Key::Left;
    case Qt::Key_Right:
        return Key::Right;
    case Qt::Key_Up:
        return Key::Up;
    case Qt::Key_Down:
        return Key::Down;
    case Qt::Key_PageUp:
        return Key::PageUp;
    case Qt::Key_PageDown:
        return Key::PageDown;
    case Qt::Key_Home:
        return Key::Home;
    case Qt::Key_End:
        return Key::End;
    case Qt::Key_Delete:
        return Key::Delete;
    case Qt::Key_0:
        // With one of these modifiers it is a shortcut.
        if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
            return std::nullopt;
        return Key::Zero;
    default:
        return std::nullopt;
    }
}

bool isText(const QString& text)
{
    return !text.isEmpty() && text.front().isPrint();
}

std::vector<std::filesystem::path> filesIn(const QMimeData& data)
{
    std::vector<std::filesystem::path> files;
    for (const auto& url : data.urls()) {
        if (url.isLocalFile())
            files.emplace_back(QFile::encodeName(url.toLocalFile()).toStdString());
    }
    return files;
}

/// Not as a move, which file managers propose: they would then delete the file.
void acceptAsCopy(QDropEvent& event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

PaneWidget::PaneWidget(toolkit::Window& window)
    : _window(window)
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    const auto size = window.bounds().size;
    resize(QSizeF(size.width, size.height).toSize());
    _window.onInvalidate = [this](const toolkit::Rect& part) { repaintPart(part); };
    // Delayed, because the focus may move during painting or in the editor.
    _window.onFocusMoved = [this] { QTimer::singleShot(0, this, [this] { lendEditor(); }); };
}

PaneWidget::~PaneWidget()
{
    _window.onInvalidate = nullptr;
    _window.onFocusMoved = nullptr;
}

void PaneWidget::repaintPart(const toolkit::Rect& part)
{
    update(QRectF(part.origin.x, part.origin.y, part.size.width, part.size.height).toAlignedRect());
}

void PaneWidget::paintEvent(QPaintEvent* event)
{
    // The whole window is painted when it moves to a screen with another scale.
    setScreenScale(devicePixelRatioF());
    _window.layOutAll();
    if (_editor) {
        _editor->follow();
        _editor->setFieldDraws(!_editor->isDrawing());
    }
    QPainter painter(this);
    painter.setClipRect(event->rect());
    QtCanvas canvas(painter, devicePixelRatioF());
    _window.drawTree(canvas);
    // Other pictures of the window do not show the editor.
    if (_editor)
        _editor->setFieldDraws(true);
}

void PaneWidget::resizeEvent(QResizeEvent* event)
{
    const QSizeF size = event->size();
    _window.setFrame(toolkit::makeRect(0, 0, size.width(), size.height()));
}

bool PaneWidget::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        touchEvent(static_cast<const QTouchEvent&>(*event));
        return true;
    case QEvent::TouchCancel:
    case QEvent::UngrabMouse:
    case QEvent::Hide:
        _finger = -1;
        _mouse = false;
        _window.touchCancel();
        return QWidget::event(event);
    default:
        return QWidget::event(event);
    }
}

void PaneWidget::touchEvent(const QTouchEvent& event)
{
    for (const auto& point : event.points()) {
        const auto location = toolkitPoint(point.position());
        if (point.state() == QEventPoint::Pressed && _finger < 0 && !_mouse) {
            _finger = point.id();
            _window.touchDown({ location, Pointer::Finger });
        } else if (point.id() == _finger && point.state() == QEventPoint::Updated) {
            _window.touchMove(location);
        } else if (point.id() == _finger && point.state() == QEventPoint::Released) {
            _finger = -1;
            _window.touchUp(location);
        }
    }
}

void PaneWidget::mousePressEvent(QMouseEvent* event)
{
    mouseDown(*event, false);
}

void PaneWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mouseDown(*event, true);
}

void PaneWidget::mouseDown(const QMouseEvent& event, bool isDoubleClick)
{
    if (event.button() != Qt::LeftButton || isMadeUp(event) || _finger >= 0)
        return;
    _mouse = true;
    _window.touchDown({ toolkitPoint(event.position()), Pointer::Mouse, isDoubleClick });
}

void PaneWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (_mouse && !isMadeUp(*event))
        _window.touchMove(toolkitPoint(event->position()));
}

void PaneWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!_mouse || event->button() != Qt::LeftButton || isMadeUp(*event))
        return;
    _mouse = false;
    _window.touchUp(toolkitPoint(event->position()));
}

void PaneWidget::wheelEvent(QWheelEvent* event)
{
    // Under X11 the pixels are in a unit of the device's driver.
    const auto pixels = QGuiApplication::platformName() == "xcb" ? QPoint() : event->pixelDelta();
    const QPointF distance
        = pixels.isNull() ? QPointF(event->angleDelta()) * (notchDistance / notchAngle) : QPointF(pixels);
    _window.scroll(toolkitPoint(event->position()), { -distance.x(), -distance.y() });
}

void PaneWidget::keyPressEvent(QKeyEvent* event)
{
    // Text may arrive before the editor exists.
    if (!_editor && isText(event->text()) && _window.typeText(event->text().toStdString()))
        return;
    const auto key = keyOf(*event);
    const auto stroke = event->isAutoRepeat() ? KeyStroke::Repeated : KeyStroke::First;
    if (!key || !_window.keyPressed(*key, stroke))
        QWidget::keyPressEvent(event);
}

void PaneWidget::keyReleaseEvent(QKeyEvent* event)
{
    // Qt also reports a release before each repetition of a pressed key.
    const auto key = keyOf(*event);
    if (key && !event->isAutoRepeat())
        _window.keyReleased(*key);
}

void PaneWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (onFilesDropped && !filesIn(*event->mimeData()).empty())
        acceptAsCopy(*event);
}

void PaneWidget::dropEvent(QDropEvent* event)
{
    acceptAsCopy(*event);
    onFilesDropped(filesIn(*event->mimeData()));
}

void PaneWidget::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    // Qt reports the focus of the widget when this function returns. The focused view must be reported after
    // that.
    QTimer::singleShot(0, this, [this] {
        if (auto* part = _window.focus().part())
            part->accessibleChanged(toolkit::AccessibleChange::FocusMoved);
    });
}

void PaneWidget::focusOutEvent(QFocusEvent* event)
{
    _window.releaseKeys();
    QWidget::focusOutEvent(event);
}

void PaneWidget::lendEditor()
{
    auto* field = dynamic_cast<toolkit::TextField*>(_window.focus().view());
    if (_editor && &_editor->field() == field)
        return;
    if (_editor) {
        const bool hadFocus = _editor->hasFocus();
        setFocusProxy(nullptr);
        _editor.reset();
        if (hadFocus)
            setFocus();
    }
    if (field) {
        _editor = std::make_unique<FieldEditor>(*this, *field);
        _editor->show();
        setFocusProxy(_editor.get());
        _editor->setFocus();
        _editor->liftLengthLimit();
    }
}

bool PaneWidget::focusNextPrevChild(bool)
{
    // There are no other widgets. Tab moves between the views.
    return false;
}

} // namespace brimsound::desktop
