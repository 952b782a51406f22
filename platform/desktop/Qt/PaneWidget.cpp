#include "platform/desktop/Qt/PaneWidget.h"

#include "platform/desktop/Qt/QtCanvas.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTouchEvent>
#include <QWheelEvent>

#include <optional>

namespace brimsound::desktop {

namespace {

/// Points that one notch of a wheel scrolls.
constexpr double notchDistance = 60;
/// The wheel's angle for one notch, in the eighths of a degree that Qt counts in.
constexpr double notchAngle = 120;

CGPoint cgPoint(QPointF point)
{
    return { point.x(), point.y() };
}

// A mouse event that Qt made up from a touch; the touch itself has been seen.
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
    default:
        return std::nullopt;
    }
}

} // namespace

PaneWidget::PaneWidget(Window& window)
    : _window(window)
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    const auto size = window.bounds().size;
    resize(QSizeF(size.width, size.height).toSize());
    _window.onInvalidate = [this](const CGRect& part) { repaintPart(part); };
}

PaneWidget::~PaneWidget()
{
    _window.onInvalidate = nullptr;
}

void PaneWidget::repaintPart(const CGRect& part)
{
    update(QRectF(part.origin.x, part.origin.y, part.size.width, part.size.height).toAlignedRect());
}

void PaneWidget::paintEvent(QPaintEvent* event)
{
    _window.layOut();
    QPainter painter(this);
    painter.setClipRect(event->rect());
    QtCanvas canvas(painter, devicePixelRatioF());
    drawTree(_window, canvas);
}

void PaneWidget::resizeEvent(QResizeEvent* event)
{
    const QSizeF size = event->size();
    _window.setFrame(CGRectMake(0, 0, size.width(), size.height()));
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
        const auto location = cgPoint(point.position());
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
    if (event->button() != Qt::LeftButton || isMadeUp(*event) || _finger >= 0)
        return;
    _mouse = true;
    _window.touchDown({ cgPoint(event->position()), Pointer::Mouse });
}

void PaneWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (_mouse && !isMadeUp(*event))
        _window.touchMove(cgPoint(event->position()));
}

void PaneWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!_mouse || event->button() != Qt::LeftButton || isMadeUp(*event))
        return;
    _mouse = false;
    _window.touchUp(cgPoint(event->position()));
}

void PaneWidget::wheelEvent(QWheelEvent* event)
{
    const auto pixels = event->pixelDelta();
    const QPointF distance
        = pixels.isNull() ? QPointF(event->angleDelta()) * (notchDistance / notchAngle) : QPointF(pixels);
    _window.scroll(cgPoint(event->position()), { -distance.x(), -distance.y() });
}

void PaneWidget::keyPressEvent(QKeyEvent* event)
{
    const auto key = keyOf(*event);
    if (!key || !_window.keyPressed(*key))
        QWidget::keyPressEvent(event);
}

bool PaneWidget::focusNextPrevChild(bool)
{
    // There is no other widget to go to: Tab is the views' own.
    return false;
}

} // namespace brimsound::desktop
