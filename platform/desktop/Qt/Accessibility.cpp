#include "platform/desktop/Qt/Accessibility.h"

#include "platform/desktop/Qt/PaneWidget.h"
#include "platform/desktop/Qt/ViewInterface.h"
#include "toolkit/window/Window.h"

#include <QAccessibleWidget>
#include <QGuiApplication>

namespace brimsound::desktop {

using toolkit::AccessibleChange, toolkit::Role, toolkit::View, toolkit::Window;

namespace {

/// The interface of the widget. Its children are the views.
class RootInterface : public QAccessibleWidget {
public:
    RootInterface(QWidget& widget, Accessibility& accessibility)
        : QAccessibleWidget(&widget, widget.isWindow() ? QAccessible::Window : QAccessible::Pane)
        , _accessibility(accessibility)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const auto text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? QGuiApplication::applicationDisplayName() : text;
    }

    QAccessible::State state() const override
    {
        auto state = QAccessibleWidget::state();
        // The widget itself is not focused while a child is.
        state.focused = state.focused && !focusedAmong(children());
        return state;
    }

    QAccessibleInterface* child(int index) const override { return children().value(index); }
    int childCount() const override { return static_cast<int>(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(children().indexOf(const_cast<QAccessibleInterface*>(child)));
    }
    QAccessibleInterface* childAt(int x, int y) const override { return interfaceAt(children(), { x, y }); }
    QAccessibleInterface* focusChild() const override
    {
        if (auto* focused = focusedAmong(children()); focused && widget()->hasFocus())
            return focused;
        return QAccessibleWidget::focusChild();
    }

private:
    /// The views, followed by the widgets over them.
    QList<QAccessibleInterface*> children() const
    {
        auto found = interfacesIn(_accessibility, _accessibility.window());
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i)
            found.append(QAccessibleWidget::child(i));
        return found;
    }

    Accessibility& _accessibility;
};

QAccessibleInterface* makeRoot(const QString&, QObject* object)
{
    auto* widget = dynamic_cast<PaneWidget*>(object);
    return widget ? new RootInterface(*widget, widget->accessibility()) : nullptr;
}

/// The text of a reachable text field without an editor; empty for other views. An editor reports its changes
/// itself.
QString textOf(const View& view)
{
    const bool tells = view.role() == Role::TextField && view.isReachable();
    return tells ? QString::fromStdString(view.accessible().value) : QString();
}

void remove(QAccessibleInterface* interface)
{
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
}

} // namespace

Accessibility::Accessibility(QWidget& widget, Window& window)
    : _widget(widget)
    , _window(window)
{
    QAccessible::installFactory(makeRoot);
    QAccessible::installActivationObserver(this);
    setListening(QAccessible::isActive());
}

Accessibility::~Accessibility()
{
    QAccessible::removeActivationObserver(this);
    setListening(false);
    for (const auto& [view, interface] : _interfaces) {
        const_cast<View*>(view)->onDestroyed = nullptr;
        remove(interface);
    }
    // The widget exists a little longer, without the views.
    if (auto* root = QAccessible::queryAccessibleInterface(&_widget))
        remove(root);
}

QAccessibleInterface* Accessibility::interfaceOf(View& view)
{
    if (const auto known = _interfaces.find(&view); known != _interfaces.end())
        return known->second;
    auto& onDestroyed = view.onDestroyed;
    // Another widget may have shown the window before.
    if (const auto other = std::exchange(onDestroyed, nullptr))
        other();
    auto* interface = new ViewInterface(*this, view);
    QAccessible::registerAccessibleInterface(interface);
    _interfaces.emplace(&view, interface);
    onDestroyed = [this, gone = &view] { forget(*gone); };
    return interface;
}

void Accessibility::forget(const View& view)
{
    if (auto entry = _interfaces.extract(&view))
        remove(entry.mapped());
}

QAccessibleInterface* Accessibility::parentOf(const View& view)
{
    auto* parent = view.accessibleParent();
    return parent ? interfaceOf(*parent) : QAccessible::queryAccessibleInterface(&_widget);
}

void Accessibility::setListening(bool listening)
{
    if (listening)
        _window.onAccessibleChange = [this](View& view, AccessibleChange what) { changed(view, what); };
    else
        _window.onAccessibleChange = nullptr;
}

void Accessibility::changed(View& view, AccessibleChange what)
{
    const auto send = [this](QAccessibleEvent&& event) { deliver(&event); };
    const auto sendForEach = [&](QAccessible::Event type) {
        if (!view.isReachable())
            return;
        if (view.role() != Role::None) {
            send({ interfaceOf(view), type });
            return;
        }
        for (auto* interface : interfacesIn(*this, view))
            send({ interface, type });
    };

    switch (what) {
    case AccessibleChange::ValueChanged:
        send(QAccessibleValueChangeEvent(
            interfaceOf(view), interfaceOf(view)->valueInterface()->currentValue()));
        break;
    case AccessibleChange::TextWillChange:
        if (const auto text = textOf(view); !text.isEmpty())
            send(QAccessibleTextRemoveEvent(interfaceOf(view), 0, text));
        break;
    case AccessibleChange::TextChanged:
        if (const auto text = textOf(view); !text.isEmpty())
            send(QAccessibleTextInsertEvent(interfaceOf(view), 0, text));
        break;
    case AccessibleChange::StateChanged:
        sendStateOf(view);
        break;
    case AccessibleChange::Shown:
        sendForEach(QAccessible::ObjectShow);
        break;
    case AccessibleChange::WillHide:
        sendForEach(QAccessible::ObjectHide);
        break;
    case AccessibleChange::AlertShown:
        send({ interfaceOf(view), QAccessible::Alert });
        break;
    case AccessibleChange::FocusMoved:
        // A text field gets an editor, which reports the focus itself.
        if (const auto role = view.role(); role != Role::None && role != Role::TextField)
            send({ interfaceOf(view), QAccessible::Focus });
        break;
    }
}

void Accessibility::sendStateOf(View& view)
{
    if (view.role() == Role::Switch) {
        QAccessible::State changedState;
        changedState.checked = true;
        QAccessibleStateChangeEvent event(interfaceOf(view), changedState);
        deliver(&event);
    } else if (view.role() == Role::Row) {
        QAccessibleEvent event(interfaceOf(view),
            view.accessible().selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
        deliver(&event);
    }
}

} // namespace brimsound::desktop
