// Makes the views visible to screen readers.
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

/// Hands out an interface for each view of a window that somebody asks about. An interface lives as long as
/// its view, or as long as this; it has the same id all the time. The widget's own interface is the root.
class Accessibility : public QAccessible::ActivationObserver {
public:
    /// The widget shows the window; both outlive this.
    Accessibility(QWidget&, toolkit::Window&);
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    ~Accessibility() override;

    QWidget& widget() const { return _widget; }
    toolkit::Window& window() const { return _window; }

    QAccessibleInterface* interfaceOf(toolkit::View&);
    /// The interface of the nearest view around the view that has one, the root for want of any.
    QAccessibleInterface* parentOf(const toolkit::View&);

    void accessibilityActiveChanged(bool active) override { setListening(active); }

    /// Where events go: to the screen reader, through Qt, which drops them where the platform has none.
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
