#pragma once

#include "platform/desktop/Qt/Accessibility.h"
#include "platform/desktop/Qt/FieldEditor.h"
#include "toolkit/window/Window.h"

#include <QTouchEvent>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace brimsound::desktop {

/// Shows the views of a window, and passes it the input from mouse, touch screen, wheel and keyboard. The
/// window must outlive the widget.
class PaneWidget : public QWidget {
public:
    explicit PaneWidget(toolkit::Window&);
    ~PaneWidget() override;

    Accessibility& accessibility() { return _accessibility; }

    /// Set by the program: called with the local files that are dropped onto the widget. Without it, no files
    /// can be dropped.
    std::function<void(const std::vector<std::filesystem::path>&)> onFilesDropped;

protected:
    bool event(QEvent*) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void wheelEvent(QWheelEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void keyReleaseEvent(QKeyEvent*) override;
    void dragEnterEvent(QDragEnterEvent*) override;
    void dropEvent(QDropEvent*) override;
    void focusInEvent(QFocusEvent*) override;
    void focusOutEvent(QFocusEvent*) override;
    bool focusNextPrevChild(bool next) override;

private:
    void touchEvent(const QTouchEvent&);
    void mouseDown(const QMouseEvent&, bool isDoubleClick);
    void repaintPart(const toolkit::Rect&);
    /// Puts an editor over the focused text field, and removes the editor from any other field.
    void lendEditor();

    toolkit::Window& _window;
    Accessibility _accessibility { *this, _window };
    std::unique_ptr<FieldEditor> _editor;
    /// The finger or the mouse of the current touch. All others are ignored.
    int _finger = -1;
    bool _mouse = false;
};

} // namespace brimsound::desktop
