#include "platform/desktop/Qt/ViewInterface.h"

#include "platform/desktop/Qt/Accessibility.h"
#include "toolkit/control/Slider.h"
#include "toolkit/table/Table.h"
#include "toolkit/window/Window.h"

#include <QWidget>

namespace brimsound::desktop {

using toolkit::Accessible, toolkit::Role, toolkit::View;

namespace {

/// Qt defines no name for this action.
const auto deleteAction = QStringLiteral("Delete");

QAccessible::Role qtRole(Role role)
{
    switch (role) {
    case Role::None:
        return QAccessible::NoRole;
    case Role::Table:
        // Not a table, which is a grid of cells in Qt.
        return QAccessible::Grouping;
    case Role::List:
        return QAccessible::List;
    case Role::Row:
        return QAccessible::ListItem;
    case Role::Label:
        return QAccessible::StaticText;
    case Role::Slider:
        return QAccessible::Slider;
    case Role::Switch:
        return QAccessible::CheckBox;
    case Role::Button:
        return QAccessible::Button;
    case Role::TextField:
        return QAccessible::EditableText;
    case Role::Alert:
        return QAccessible::AlertMessage;
    case Role::Dialog:
        return QAccessible::Dialog;
    }
    return QAccessible::NoRole;
}

/// The actions of a view, except for moving the focus to it.
QStringList actionsOf(const Accessible& self)
{
    switch (self.role) {
    case Role::Button:
    case Role::Row:
        return self.deletable ? QStringList { QAccessibleActionInterface::pressAction(), deleteAction }
                              : QStringList { QAccessibleActionInterface::pressAction() };
    case Role::Switch:
        return { QAccessibleActionInterface::toggleAction() };
    case Role::Slider:
        return { QAccessibleActionInterface::increaseAction(), QAccessibleActionInterface::decreaseAction() };
    case Role::Table:
    case Role::List:
        return { QAccessibleActionInterface::nextPageAction(),
            QAccessibleActionInterface::previousPageAction() };
    default:
        return {};
    }
}

} // namespace

QList<QAccessibleInterface*> interfacesIn(Accessibility& accessibility, const View& view)
{
    QList<QAccessibleInterface*> interfaces;
    for (auto* child : view.accessibleChildren())
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

ViewInterface::ViewInterface(Accessibility& accessibility, View& view)
    : _accessibility(accessibility)
    , _view(view)
{
}

bool ViewInterface::isValid() const
{
    return _view.isWithin(_accessibility.window());
}

Accessible ViewInterface::accessible() const
{
    return isValid() ? _view.accessible() : Accessible();
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
    return isValid() ? static_cast<int>(_view.accessibleChildren().size()) : 0;
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
    const auto origin = _view.toWindow(bounds.origin);
    const auto rect = QRectF(origin.x, origin.y, bounds.size.width, bounds.size.height).toAlignedRect();
    return { _accessibility.widget().mapToGlobal(rect.topLeft()), rect.size() };
}

QAccessible::Role ViewInterface::role() const
{
    return isValid() ? qtRole(_view.role()) : QAccessible::NoRole;
}

QAccessible::State ViewInterface::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const auto self = accessible();
    state.checkable = self.role == Role::Switch;
    state.checked = self.checked;
    state.editable = self.role == Role::TextField;
    state.selectable = self.role == Role::Row;
    state.selected = self.selected;
    const bool reachable = _view.isReachable();
    state.invisible = !reachable;
    state.focusable = reachable && self.role != Role::None && _view.isFocusable();
    state.focused = _accessibility.window().focus().part() == &_view;
    state.modal = self.role == Role::Alert || self.role == Role::Dialog;
    const auto bounds = _view.bounds();
    const toolkit::Rect place { _view.toWindow(bounds.origin), bounds.size };
    state.offscreen = !toolkit::intersects(place, _accessibility.window().bounds());
    return state;
}

void* ViewInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface && slider())
        return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::TextInterface && role() == QAccessible::EditableText)
        return static_cast<QAccessibleTextInterface*>(&_fieldText);
    if (type == QAccessible::ActionInterface && !actionNames().isEmpty())
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

toolkit::Slider* ViewInterface::slider() const
{
    return isValid() ? dynamic_cast<toolkit::Slider*>(&_view) : nullptr;
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
    if (auto* moved = slider(); moved && isNumber)
        moved->slideTo(number);
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
    return self.role != Role::None && _view.isFocusable() ? names + QStringList { setFocusAction() } : names;
}

void ViewInterface::doAction(const QString& name)
{
    // The action may remove the view and destroy this object.
    if (!actionNames().contains(name))
        return;
    if (name == setFocusAction())
        _accessibility.window().focus().moveTo(_view);
    else if (auto* moved = slider())
        moved->stepBy(name == increaseAction() ? 1 : -1);
    else if (auto* scrollView = dynamic_cast<toolkit::ScrollView*>(&_view))
        scrollView->scrollPages(name == nextPageAction() ? 1 : -1);
    else if (auto* cell = dynamic_cast<toolkit::Cell*>(&_view); cell && name == deleteAction)
        cell->deleteRow();
    else
        _view.activate();
}

} // namespace brimsound::desktop
