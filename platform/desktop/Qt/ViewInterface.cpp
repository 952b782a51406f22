#include "platform/desktop/Qt/ViewInterface.h"

#include "platform/desktop/Qt/Accessibility.h"
#include "platform/desktop/UIKit/Press.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <QWidget>

namespace brimsound::desktop {

namespace {

/// Qt has no name of its own for it.
const auto deleteAction = QStringLiteral("Delete");

QAccessible::Role qtRole(AccessibleRole role)
{
    switch (role) {
    case AccessibleRole::None:
        return QAccessible::NoRole;
    case AccessibleRole::Table:
        // A list of unlike things; a table to Qt is a grid of cells.
        return QAccessible::Grouping;
    case AccessibleRole::List:
        return QAccessible::List;
    case AccessibleRole::Row:
        return QAccessible::ListItem;
    case AccessibleRole::Label:
        return QAccessible::StaticText;
    case AccessibleRole::Slider:
        return QAccessible::Slider;
    case AccessibleRole::Switch:
        return QAccessible::CheckBox;
    case AccessibleRole::Button:
        return QAccessible::Button;
    case AccessibleRole::TextField:
        return QAccessible::EditableText;
    case AccessibleRole::Alert:
        return QAccessible::AlertMessage;
    case AccessibleRole::Dialog:
        return QAccessible::Dialog;
    }
    return QAccessible::NoRole;
}

/// What can be done with a view besides giving it the keyboard.
QStringList actionsOf(const Accessible& self)
{
    switch (self.role) {
    case AccessibleRole::Button:
    case AccessibleRole::Row:
        return self.deletable ? QStringList { QAccessibleActionInterface::pressAction(), deleteAction }
                              : QStringList { QAccessibleActionInterface::pressAction() };
    case AccessibleRole::Switch:
        return { QAccessibleActionInterface::toggleAction() };
    case AccessibleRole::Slider:
        return { QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction() };
    case AccessibleRole::Table:
    case AccessibleRole::List:
        return { QAccessibleActionInterface::nextPageAction(),
            QAccessibleActionInterface::previousPageAction() };
    default:
        return {};
    }
}

} // namespace

QList<QAccessibleInterface*> interfacesIn(Accessibility& accessibility, const UIView& view)
{
    QList<QAccessibleInterface*> interfaces;
    for (auto* child : accessibleChildren(view))
        interfaces.append(accessibility.interfaceOf(*child));
    return interfaces;
}

QAccessibleInterface* interfaceAt(const QList<QAccessibleInterface*>& interfaces, QPoint point)
{
    for (auto* interface : interfaces) {
        if (interface->rect().contains(point))
            return interface;
    }
    return nullptr;
}

QAccessibleInterface* focusedAmong(const QList<QAccessibleInterface*>& interfaces)
{
    for (auto* interface : interfaces) {
        if (interface->state().focused)
            return interface;
        if (auto* inner = interface->focusChild())
            return inner;
    }
    return nullptr;
}

ViewInterface::ViewInterface(Accessibility& accessibility, UIView& view)
    : _accessibility(accessibility)
    , _view(view)
{
}

bool ViewInterface::isValid() const
{
    const UIView* ancestor = &_view;
    while (ancestor && ancestor != &_accessibility.window())
        ancestor = ancestor->superview();
    return ancestor != nullptr;
}

Accessible ViewInterface::accessible() const
{
    return isValid() ? peerOf(_view).accessible() : Accessible();
}

QWindow* ViewInterface::window() const
{
    return _accessibility.widget().window()->windowHandle();
}

QAccessibleInterface* ViewInterface::parent() const
{
    return isValid() ? _accessibility.parentOf(_view) : nullptr;
}

QAccessibleInterface* ViewInterface::child(int index) const
{
    return isValid() ? interfacesIn(_accessibility, _view).value(index) : nullptr;
}

int ViewInterface::childCount() const
{
    return isValid() ? static_cast<int>(accessibleChildren(_view).size()) : 0;
}

int ViewInterface::indexOfChild(const QAccessibleInterface* child) const
{
    if (!isValid())
        return -1;
    return static_cast<int>(
        interfacesIn(_accessibility, _view).indexOf(const_cast<QAccessibleInterface*>(child)));
}

QAccessibleInterface* ViewInterface::childAt(int x, int y) const
{
    return isValid() ? interfaceAt(interfacesIn(_accessibility, _view), { x, y }) : nullptr;
}

QAccessibleInterface* ViewInterface::focusChild() const
{
    return isValid() ? focusedAmong(interfacesIn(_accessibility, _view)) : nullptr;
}

QString ViewInterface::text(QAccessible::Text kind) const
{
    const auto self = accessible();
    switch (kind) {
    case QAccessible::Name:
        return QString::fromStdString(self.name);
    case QAccessible::Description:
        return QString::fromStdString(self.description);
    case QAccessible::Value:
        return QString::fromStdString(self.value);
    default:
        return {};
    }
}

QRect ViewInterface::rect() const
{
    if (!isValid())
        return {};
    const auto bounds = _view.bounds();
    const auto origin = convertToWindow(bounds.origin, _view);
    const auto rect = QRectF(origin.x, origin.y, bounds.size.width, bounds.size.height).toAlignedRect();
    return { _accessibility.widget().mapToGlobal(rect.topLeft()), rect.size() };
}

QAccessible::Role ViewInterface::role() const
{
    return qtRole(accessible().role);
}

QAccessible::State ViewInterface::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const auto self = accessible();
    state.checkable = self.role == AccessibleRole::Switch;
    state.checked = self.checked;
    state.editable = self.role == AccessibleRole::TextField;
    state.selectable = self.role == AccessibleRole::Row;
    state.selected = self.selected;
    const bool reachable = isReachable(_view);
    state.invisible = !reachable;
    state.focusable = reachable && self.focusable;
    state.focused = _accessibility.window().focus().part() == &_view;
    state.modal = self.role == AccessibleRole::Alert || self.role == AccessibleRole::Dialog;
    const auto bounds = _view.bounds();
    const CGRect place { convertToWindow(bounds.origin, _view), bounds.size };
    state.offscreen = !intersects(place, _accessibility.window().bounds());
    return state;
}

void* ViewInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && accessible().range)
        return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface && accessible().role == AccessibleRole::TextField)
        return static_cast<QAccessibleTextInterface*>(&_fieldText);
    if (type == QAccessible::ActionInterface && !actionNames().isEmpty())
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QVariant ViewInterface::currentValue() const
{
    const auto range = accessible().range;
    return range ? range->value : QVariant();
}

void ViewInterface::setCurrentValue(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && accessible().range)
        slideTo(static_cast<UISlider&>(_view), number);
}

QVariant ViewInterface::minimumValue() const
{
    const auto range = accessible().range;
    return range ? range->minimum : QVariant();
}

QVariant ViewInterface::maximumValue() const
{
    const auto range = accessible().range;
    return range ? range->maximum : QVariant();
}

QVariant ViewInterface::minimumStepSize() const
{
    const auto range = accessible().range;
    return range ? range->step : QVariant();
}

QStringList ViewInterface::actionNames() const
{
    const auto self = accessible();
    const auto names = actionsOf(self);
    return self.focusable ? names + QStringList { setFocusAction() } : names;
}

void ViewInterface::doAction(const QString& name)
{
    // What an action does may take the view away, and this with it.
    if (!actionNames().contains(name))
        return;
    const auto self = accessible();
    if (name == setFocusAction())
        _accessibility.window().focus().moveTo(_view);
    else if (self.range)
        setCurrentValue(
            self.range->value + (name == increaseAction() ? self.range->step : -self.range->step));
    else if (name == deleteAction)
        deleteRow(static_cast<UITableViewCell&>(_view));
    else if (self.role == AccessibleRole::Table || self.role == AccessibleRole::List)
        scrollPages(_view, name == nextPageAction() ? 1 : -1);
    else
        press(_view);
}

} // namespace brimsound::desktop
