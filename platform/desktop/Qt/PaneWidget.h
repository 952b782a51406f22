// The one widget that shows a view tree.
#pragma once

#include "platform/desktop/Qt/Accessibility.h"
#include "platform/desktop/Qt/FieldEditor.h"
#include "toolkit/window/Window.h"

#include <QTouchEvent>
#include <QWidget>

#include <memory>

namespace brimsound::desktop {

/// Paints a window's views and hands it what mouse, finger, wheel and keys do. The window outlives the
/// widget.
class PaneWidget : public QWidget {
public:
    explicit PaneWidget(toolkit::Window&);
    ~PaneWidget() override;

    Accessibility& accessibility() { return _accessibility; }

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool focusNextPrevChild(bool next) override;

private:
    void touchEvent(const QTouchEvent&);
    void repaintPart(const toolkit::Rect&);
    /// Lays an editor over the text field that has the keyboard, and takes it away from another.
    void lendEditor();

    toolkit::Window& _window;
    Accessibility _accessibility { *this, _window };
    std::unique_ptr<FieldEditor> _editor;
    /// The finger or the mouse that holds the touch; the others are ignored.
    int _finger = -1;
    bool _mouse = false;
};

} // namespace brimsound::desktop
