// Makes the views visible to screen readers.
#pragma once

#include "platform/desktop/UIKit/Accessible.h"

#include <QAccessible>

#include <functional>
#include <unordered_map>

class QWidget;

namespace brimsound::desktop {

class ViewInterface;
class Window;

/// Hands out an interface for each view of a window that somebody asks about. An interface lives as long as
/// its view, or as long as this; it has the same id all the time. The widget's own interface is the root.
class Accessibility : public QAccessible::ActivationObserver {
public:
    /// The widget shows the window; both outlive this.
    Accessibility(QWidget&, Window&);
    Accessibility(const Accessibility&) = delete;
    Accessibility& operator=(const Accessibility&) = delete;
    ~Accessibility() override;

    QWidget& widget() const { return _widget; }
    Window& window() const { return _window; }

    QAccessibleInterface* interfaceOf(UIView&);
    /// The interface of the nearest view around the view that has one, the root for want of any.
    QAccessibleInterface* parentOf(const UIView&);

    void accessibilityActiveChanged(bool active) override { setListening(active); }

    /// Where events go: to the screen reader, through Qt, which drops them where the platform has none.
    std::function<void(QAccessibleEvent*)> deliver = QAccessible::updateAccessibility;

private:
    void setListening(bool);
    void changed(UIView&, AccessibleChange);
    void sendStateOf(UIView&);
    void forget(const UIView&);

    QWidget& _widget;
    Window& _window;
    std::unordered_map<const UIView*, ViewInterface*> _interfaces;
};

} // namespace brimsound::desktop
