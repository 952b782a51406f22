#pragma once

#include "toolkit/view/View.h"

#include <QAccessible>

#include <functional>
#include <unordered_map>

class QWidget;

namespace brimsound::toolkit {
class Window;
}

namespace brimsound::desktop {

class ViewInterface;

/// Makes the views of a window accessible to screen readers. Creates an interface for a view when it is
/// requested. The interface is destroyed with the view or with this object, and keeps its id until then. The
/// interface of the widget is the root.
class Accessibility : public QAccessible::ActivationObserver {
public:
    /// Both must outlive this object.
    Accessibility(QWidget&, toolkit::Window&);
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    ~Accessibility() override;

    QWidget& widget() const { return _widget; }
    toolkit::Window& window() const { return _window; }

    QAccessibleInterface* interfaceOf(toolkit::View&);
    /// The interface of the nearest ancestor with a role, otherwise the root.
    QAccessibleInterface* parentOf(const toolkit::View&);

    void accessibilityActiveChanged(bool active) override { setListening(active); }

    /// Delivers events to the screen reader, through Qt.
    std::function<void(QAccessibleEvent*)> deliver = QAccessible::updateAccessibility;

private:
    void setListening(bool);
    void changed(toolkit::View&, toolkit::AccessibleChange);
    void sendStateOf(toolkit::View&);
    void forget(const toolkit::View&);

    QWidget& _widget;
    toolkit::Window& _window;
    std::unordered_map<const toolkit::View*, ViewInterface*> _interfaces;
};

} // namespace brimsound::desktop
