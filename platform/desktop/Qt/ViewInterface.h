#pragma once

#include "platform/desktop/Qt/FieldText.h"
#include "toolkit/view/View.h"

#include <QAccessibleInterface>

namespace brimsound::toolkit {
class Slider;
}

namespace brimsound::desktop {

class Accessibility;

/// A view for screen readers. The view may be out of the window, for example a table row that is kept for
/// reuse; the interface is then not valid.
class ViewInterface : public QAccessibleInterface,
                      public QAccessibleValueInterface,
                      public QAccessibleActionInterface {
public:
    ViewInterface(Accessibility&, toolkit::View&);

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface*) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    QString text(QAccessible::Text) const override;
    void setText(QAccessible::Text, const QString&) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant&) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    toolkit::Accessible accessible() const;
    /// The view as a slider; null for other views.
    toolkit::Slider* slider() const;

    Accessibility& _accessibility;
    toolkit::View& _view;
    FieldText _fieldText { *this };
};

/// The children of a view as interfaces, in reading order.
QList<QAccessibleInterface*> interfacesIn(Accessibility&, const toolkit::View&);
/// The interface at a point of the screen; may be null.
QAccessibleInterface* interfaceAt(const QList<QAccessibleInterface*>&, QPoint);
/// The interface that has the focus, or a descendant with the focus; may be null.
QAccessibleInterface* focusedAmong(const QList<QAccessibleInterface*>&);

} // namespace brimsound::desktop
