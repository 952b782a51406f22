#include "platform/desktop/Qt/PaneWidget.h"

#include "platform/Foundation/NSString.h"

#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/control/Slider.h"
#include "toolkit/control/Switch.h"
#include "toolkit/text/TextField.h"

#include <QAccessible>
#include <QApplication>
#include <QFocusEvent>

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

namespace brimsound::tests {

namespace {

using desktop::PaneWidget;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using toolkit::Cell, toolkit::Font, toolkit::Label, toolkit::make, toolkit::makeRect, toolkit::Ref,
    toolkit::RowPath;
using toolkit::Size, toolkit::Slider, toolkit::Switch, toolkit::Table, toolkit::TextButton,
    toolkit::TextField;
using toolkit::Window;

/// What was sent since the last call, by type and name of the interface.
std::vector<std::pair<QAccessible::Event, QString>> sent;

void writeDown(QAccessibleEvent* event)
{
    auto* interface = event->accessibleInterface();
    sent.emplace_back(event->type(), interface ? interface->text(QAccessible::Name) : QString());
}

std::vector<std::pair<QAccessible::Event, QString>> takeSent()
{
    return std::exchange(sent, {});
}

QStringList namesIn(const QAccessibleInterface& parent)
{
    QStringList names;
    for (int i = 0; i < parent.childCount(); ++i)
        names.append(parent.child(i)->text(QAccessible::Name));
    return names;
}

/// The one with that name, wherever it is; null when there is none.
QAccessibleInterface* find(const QAccessibleInterface& root, const QString& name)
{
    for (int i = 0; i < root.childCount(); ++i) {
        auto* child = root.child(i);
        if (child->text(QAccessible::Name) == name)
            return child;
        if (auto* inner = find(*child, name))
            return inner;
    }
    return nullptr;
}

/// Two sliders, named as the captions at their left, in a window that a widget shows to a screen reader.
class AnAccessiblePane : public testing::Test {
protected:
    AnAccessiblePane()
    {
        addStrip("Pre", 0);
        addStrip("170", 44);
        window->layOutAll();
        widget->setWindowTitle("Pane");
        widget->show();
        widget->accessibility().deliver = writeDown;
        QAccessible::setActive(true);
        takeSent();
    }

    ~AnAccessiblePane() override
    {
        QAccessible::setActive(false);
        window->alerts().dismissAll();
    }

    void addStrip(const std::string& caption, double y)
    {
        const auto slider = make<Slider>();
        slider->setMinimum(-12);
        slider->setMaximum(12);
        slider->setValue(0);
        slider->setSteps({ 0.1, 1, "dB", [](double gain) { return stringWithFormat("%.1f dB", gain); } });
        slider->setLabel(caption);
        slider->setFrame(makeRect(35, y, 200, 44));
        const auto label = make<Label>(makeRect(5, y, 25, 44));
        label->setText(caption);
        label->setRead(false);
        window->add(*slider);
        window->add(*label);
        sliders.push_back(slider);
        log.listenTo(*slider);
    }

    QAccessibleInterface& root() const { return *QAccessible::queryAccessibleInterface(widget.get()); }
    QAccessibleInterface* find(const QString& name) const { return tests::find(root(), name); }

    void showAlert()
    {
        const auto alert = make<toolkit::Alert>("", "Really?", std::vector<std::string> { "No", "Yes" });
        alert->onAnswer = [this](std::size_t button) { answers.push_back(button); };
        window->alerts().add(*alert);
        window->layOutAll();
    }

    const Ref<Window> window = make<Window>(Size { 320, 400 });
    std::unique_ptr<PaneWidget> widget = std::make_unique<PaneWidget>(*window);
    std::vector<Ref<Slider>> sliders;
    EventLog log;
    std::vector<std::size_t> answers;
};

TEST_F(AnAccessiblePane, IsAWindowWithTheViewsInReadingOrder)
{
    EXPECT_EQ(root().role(), QAccessible::Window);
    EXPECT_EQ(root().text(QAccessible::Name), "Pane");
    EXPECT_EQ(root().object(), widget.get());
    EXPECT_EQ(namesIn(root()), QStringList({ "Pre", "170" }));
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(root().child(i)->parent(), &root());
        EXPECT_EQ(root().indexOfChild(root().child(i)), i);
        EXPECT_EQ(root().child(i)->role(), QAccessible::Slider);
        EXPECT_TRUE(root().child(i)->state().focusable);
    }
    EXPECT_EQ(root().child(2), nullptr);
}

TEST_F(AnAccessiblePane, AnnouncesASlidersValueInDecibels)
{
    sliders[1]->setValue(4.5f);
    EXPECT_EQ(find("170")->text(QAccessible::Value), "4.5 dB");
    auto& value = *find("170")->valueInterface();
    EXPECT_EQ(value.currentValue(), 4.5);
    EXPECT_EQ(value.minimumValue(), -12.0);
    EXPECT_EQ(value.maximumValue(), 12.0);
    EXPECT_EQ(value.minimumStepSize(), 0.1);
    EXPECT_EQ(find("170")->text(QAccessible::Description), "dB");
    sliders[1]->setValue(-0.01f);
    EXPECT_EQ(find("170")->text(QAccessible::Value), "0.0 dB");
    EXPECT_FALSE(std::signbit(value.currentValue().toDouble()));
}

TEST_F(AnAccessiblePane, MovesASliderAsATouchDoes)
{
    find("170")->valueInterface()->setCurrentValue(4.5);
    EXPECT_EQ(sliders[1]->value(), 4.5f);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside", "up inside"));
    find("170")->valueInterface()->setCurrentValue(99);
    EXPECT_EQ(sliders[1]->value(), 12.0f);
    find("170")->valueInterface()->setCurrentValue("loud");
    EXPECT_EQ(sliders[1]->value(), 12.0f);
    EXPECT_EQ(sliders[0]->value(), 0.0f);
}

TEST_F(AnAccessiblePane, MovesASliderByAStep)
{
    auto& slider = *find("170");
    slider.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(sliders[1]->value(), 0.1f);
    slider.actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(sliders[1]->value(), 0);
}

TEST_F(AnAccessiblePane, LeavesASliderAloneThatIsHeld)
{
    window->touchDown({ { 135, 66 }, toolkit::Pointer::Mouse });
    find("170")->valueInterface()->setCurrentValue(4.5);
    EXPECT_EQ(sliders[1]->value(), 0);
    EXPECT_THAT(log.take(), ElementsAre("down"));
}

TEST_F(AnAccessiblePane, TellsOfEveryValue)
{
    sliders[1]->setValue(3);
    sliders[1]->setValue(3);
    EXPECT_THAT(takeSent(), ElementsAre(std::pair(QAccessible::ValueChanged, QString("170"))));
}

TEST_F(AnAccessiblePane, SaysNothingWhenNobodyListens)
{
    QAccessible::setActive(false);
    EXPECT_FALSE(window->onAccessibleChange);
    sliders[1]->setValue(3);
    window->add(*make<Label>());
    EXPECT_THAT(takeSent(), IsEmpty());
}

TEST_F(AnAccessiblePane, TellsWhereTheViewsAreOnTheScreen)
{
    const auto rect = find("170")->rect();
    EXPECT_EQ(rect, QRect(widget->mapToGlobal(QPoint(35, 44)), QSize(200, 44)));
    EXPECT_EQ(root().childAt(rect.center().x(), rect.center().y()), find("170"));
    EXPECT_EQ(root().childAt(rect.right() + 50, rect.bottom() + 100), nullptr);
}

TEST_F(AnAccessiblePane, LeavesHiddenViewsOut)
{
    auto* slider = find("170");
    sliders[1]->setHidden(true);
    EXPECT_EQ(find("170"), nullptr);
    EXPECT_TRUE(slider->state().invisible);
    sliders[1]->setHidden(false);
    sliders[1]->setAlpha(0);
    EXPECT_EQ(find("170"), nullptr);
    sliders[1]->setAlpha(1);
    EXPECT_EQ(find("170"), slider);
}

TEST_F(AnAccessiblePane, AnnouncesAnAlertAndCoversTheRestWithIt)
{
    auto* slider = find("170");
    showAlert();
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::Alert, QString("Really?"))));
    ASSERT_EQ(namesIn(root()), QStringList({ "Really?" }));
    auto& alert = *root().child(0);
    EXPECT_EQ(alert.role(), QAccessible::AlertMessage);
    EXPECT_EQ(namesIn(alert), QStringList({ "No", "Yes" }));
    EXPECT_EQ(alert.child(1)->role(), QAccessible::Button);
    EXPECT_EQ(alert.child(1)->parent(), &alert);
    EXPECT_TRUE(alert.child(1)->state().focusable);
    EXPECT_TRUE(slider->state().invisible);
    EXPECT_FALSE(slider->state().focusable);
    slider->valueInterface()->setCurrentValue(3);
    EXPECT_EQ(sliders[1]->value(), 0);
}

TEST_F(AnAccessiblePane, PressesTheButtonsOfAnAlert)
{
    showAlert();
    takeSent();
    find("Yes")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(answers, ElementsAre(1));
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::ObjectHide, QString("Really?"))));
    EXPECT_EQ(namesIn(root()), QStringList({ "Pre", "170" }));
}

TEST_F(AnAccessiblePane, TellsWhichButtonOfAnAlertHasTheKeyboard)
{
    showAlert();
    takeSent();
    window->keyPressed(toolkit::Key::Tab, toolkit::KeyStroke::First);
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::Focus, QString("Yes"))));
    EXPECT_TRUE(find("Yes")->state().focused);
    EXPECT_FALSE(find("No")->state().focused);
}

TEST_F(AnAccessiblePane, TellsWhereTheKeyboardIs)
{
    window->keyPressed(toolkit::Key::Tab, toolkit::KeyStroke::First);
    EXPECT_THAT(takeSent(), ElementsAre(std::pair(QAccessible::Focus, QString("Pre"))));
    EXPECT_TRUE(find("Pre")->state().focused);
    EXPECT_FALSE(find("170")->state().focused);
}

TEST_F(AnAccessiblePane, TellsWhereTheKeyboardIsWhenItComesToTheWindow)
{
    window->keyPressed(toolkit::Key::Tab, toolkit::KeyStroke::First);
    takeSent();
    QFocusEvent comes(QEvent::FocusIn);
    QApplication::sendEvent(widget.get(), &comes);
    QApplication::processEvents();
    EXPECT_THAT(takeSent(), ElementsAre(std::pair(QAccessible::Focus, QString("Pre"))));
}

TEST_F(AnAccessiblePane, HasTheKeyboardItselfOnlyWhileNoViewHas)
{
    widget->activateWindow();
    widget->setFocus();
    QApplication::processEvents();
    ASSERT_TRUE(widget->hasFocus());
    EXPECT_TRUE(root().state().focused);
    window->keyPressed(toolkit::Key::Tab, toolkit::KeyStroke::First);
    EXPECT_FALSE(root().state().focused);
}

TEST_F(AnAccessiblePane, GivesTheKeyboardToWhateverIsAskedFor)
{
    find("170")->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(window->focus().view(), sliders[1].get());
    EXPECT_TRUE(find("170")->state().focused);
    showAlert();
    auto& alert = *root().child(0);
    EXPECT_TRUE(find("No")->state().focused);
    EXPECT_FALSE(alert.state().focused);
    EXPECT_EQ(alert.actionInterface(), nullptr);
}

TEST_F(AnAccessiblePane, TellsTheTextOfAFieldUntilItsEditorDoes)
{
    const auto field = make<TextField>(makeRect(5, 100, 200, 30));
    field->setText("Rock");
    field->setLabel("Name");
    window->add(*field);
    ASSERT_EQ(root().childCount(), 3);
    auto& interface = *root().child(2);
    EXPECT_EQ(interface.role(), QAccessible::EditableText);
    EXPECT_EQ(interface.text(QAccessible::Value), "Rock");
    EXPECT_TRUE(interface.state().editable);
    auto* text = interface.textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->text(1, 3), "oc");
    EXPECT_EQ(text->text(0, 99), "Rock");
    takeSent();
    field->setText("Jazz!");
    EXPECT_EQ(text->characterCount(), 5);
    EXPECT_THAT(takeSent(),
        ElementsAre(std::pair(QAccessible::TextRemoved, QString("Name")),
            std::pair(QAccessible::TextInserted, QString("Name"))));

    interface.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(window->focus().isGivenTo(*field));
    QApplication::processEvents();
    ASSERT_EQ(root().childCount(), 4);
    EXPECT_EQ(root().child(2)->text(QAccessible::Name), "Return");
    auto& editor = *root().child(3);
    EXPECT_NE(&editor, &interface);
    EXPECT_EQ(editor.role(), QAccessible::EditableText);
    EXPECT_EQ(editor.text(QAccessible::Name), "Name");
    ASSERT_TRUE(editor.textInterface());
    EXPECT_EQ(editor.textInterface()->text(0, 5), "Jazz!");
    EXPECT_THAT(takeSent(), Not(Contains(std::pair(QAccessible::Focus, QString("Name")))));

    window->focus().takeFrom(*field);
    QApplication::processEvents();
    EXPECT_EQ(root().child(2), &interface);
}

TEST_F(AnAccessiblePane, ForgetsAViewThatIsGone)
{
    const auto id = QAccessible::uniqueId(find("170"));
    EXPECT_EQ(QAccessible::accessibleInterface(id), find("170"));
    sliders[1]->removeFromParent();
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::ObjectHide, QString("170"))));
    // It may come back.
    ASSERT_NE(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_FALSE(QAccessible::accessibleInterface(id)->isValid());
    EXPECT_EQ(QAccessible::accessibleInterface(id)->parent(), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(id)->valueInterface(), nullptr);
    sliders.pop_back();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AnAccessiblePane, ForgetsItsViewsWhenItGoes)
{
    const auto id = QAccessible::uniqueId(find("170"));
    widget.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    EXPECT_FALSE(window->onAccessibleChange);
    sliders[1]->setValue(3);
    EXPECT_THAT(takeSent(), Not(Contains(std::pair(QAccessible::ValueChanged, QString("170")))));
}

TEST_F(AnAccessiblePane, HandsItsViewsToTheNextWidgetThatShowsThem)
{
    const auto id = QAccessible::uniqueId(find("170"));
    {
        PaneWidget next(*window);
        EXPECT_NE(tests::find(*QAccessible::queryAccessibleInterface(&next), "170"), nullptr);
        EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
    }
    EXPECT_NE(find("170"), nullptr);
}

TEST_F(AnAccessiblePane, IsQuietAboutAControlThatIsTakenAwayByItsOwnAction)
{
    Ref<TextButton> button;
    button = make<TextButton>(
        "Go", Font { {}, 12 }, [&] { std::exchange(button, nullptr)->removeFromParent(); });
    button->setFrame(makeRect(50, 200, 80, 40));
    window->add(*button);
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::ObjectShow, QString("Go"))));
    find("Go")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(button);
    EXPECT_EQ(find("Go"), nullptr);
}

TEST(AnAccessibleTable, OffersSwitchesTextsAndButtons)
{
    Rows rows { { 3, 30 } };
    rows.footers = { "About the first" };
    std::vector<Ref<Switch>> switches;
    rows.identifier = [](RowPath row) { return std::to_string(row.section) + "." + std::to_string(row.row); };
    rows.onCellMade = [&](Cell& cell, RowPath row) {
        cell.textLabel().setText("Row " + rows.identifier(row));
        if (row == RowPath { 0, 0 }) {
            switches.push_back(make<Switch>());
            switches.back()->setLabel(cell.textLabel().text());
            cell.textLabel().setRead(false);
            cell.setAccessory(switches.back());
            cell.setSelectable(false);
        } else if (row == RowPath { 0, 1 }) {
            cell.setSelectable(false);
        }
    };
    const TableInWindow list(rows, { 320, 400 }, Table::Style::Grouped);
    PaneWidget widget(*list.window);
    auto& table = *QAccessible::queryAccessibleInterface(&widget)->child(0);
    EXPECT_EQ(table.text(QAccessible::Description), "About the first");
    EXPECT_EQ(namesIn(table).first(3), QStringList({ "Row 0.0", "Row 0.1", "Row 0.2" }));

    auto& toggle = *table.child(0);
    EXPECT_EQ(toggle.role(), QAccessible::CheckBox);
    EXPECT_TRUE(toggle.state().checkable);
    EXPECT_FALSE(toggle.state().checked);
    toggle.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(switches[0]->isOn());
    EXPECT_TRUE(toggle.state().checked);

    EXPECT_EQ(table.child(1)->role(), QAccessible::StaticText);
    EXPECT_EQ(table.child(1)->actionInterface(), nullptr);
    EXPECT_EQ(table.child(2)->role(), QAccessible::Button);
    table.child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 2 }));

    const auto id = QAccessible::uniqueId(&toggle);
    table.actionInterface()->doAction(QAccessibleActionInterface::nextPageAction());
    EXPECT_EQ(list.offset(), 400);
    EXPECT_FALSE(namesIn(table).contains("Row 0.0"));
    EXPECT_FALSE(QAccessible::accessibleInterface(id)->isValid());
    table.actionInterface()->doAction(QAccessibleActionInterface::previousPageAction());
    EXPECT_EQ(namesIn(table).first(3), QStringList({ "Row 0.0", "Row 0.1", "Row 0.2" }));
    EXPECT_EQ(QAccessible::uniqueId(table.child(0)), id);
}

TEST(AnAccessibleList, TellsOfItsRowsAndHasThemPressedAndDeleted)
{
    Rows rows { { 20 } };
    rows.isDeletable = [](RowPath row) { return row.row > 0; };
    rows.identifier = [](RowPath row) { return std::to_string(row.row); };
    rows.onCellMade
        = [](Cell& cell, RowPath row) { cell.textLabel().setText("Row " + std::to_string(row.row)); };
    const TableInWindow list(rows, { 320, 220 });
    PaneWidget widget(*list.window);
    auto& table = *QAccessible::queryAccessibleInterface(&widget)->child(0);
    EXPECT_EQ(table.role(), QAccessible::List);
    EXPECT_EQ(namesIn(table), QStringList({ "Row 0", "Row 1", "Row 2", "Row 3", "Row 4" }));

    auto& first = *table.child(0);
    auto& second = *table.child(1);
    EXPECT_EQ(first.role(), QAccessible::ListItem);
    EXPECT_EQ(first.childCount(), 0);
    EXPECT_EQ(first.actionInterface()->actionNames(), QStringList({ "Press", "SetFocus" }));
    EXPECT_EQ(second.actionInterface()->actionNames(), QStringList({ "Press", "Delete", "SetFocus" }));

    EXPECT_TRUE(second.state().selectable);
    EXPECT_FALSE(second.state().selected);
    widget.accessibility().deliver = writeDown;
    QAccessible::setActive(true);
    takeSent();
    second.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(takeSent(), Contains(std::pair(QAccessible::SelectionAdd, QString("Row 1"))));
    QAccessible::setActive(false);
    EXPECT_TRUE(second.state().selected);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));

    first.actionInterface()->doAction("Delete");
    EXPECT_THAT(rows.deletedRows, IsEmpty());
    second.actionInterface()->doAction("Delete");
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 0, 1 }));
    EXPECT_EQ(namesIn(table).first(3), QStringList({ "Row 0", "Row 2", "Row 3" }));
}

TEST(AnAccessibleList, OffersTheButtonOfASwipedRow)
{
    Rows rows { { 3 } };
    rows.isDeletable = [](RowPath) { return true; };
    const TableInWindow list(rows, { 320, 220 });
    PaneWidget widget(*list.window);
    list.table->swipe().open({ 0, 1 });
    auto* button = find(*QAccessible::queryAccessibleInterface(&widget), "Delete");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->role(), QAccessible::Button);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST(AnAccessibleSwitch, TellsWhenItIsFlipped)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto toggle = make<Switch>();
    window->add(*toggle);
    PaneWidget widget(*window);
    widget.accessibility().deliver = writeDown;
    QAccessible::setActive(true);
    takeSent();
    toggle->setOn(true, false);
    toggle->setOn(true, false);
    EXPECT_THAT(takeSent(), ElementsAre(std::pair(QAccessible::StateChanged, QString())));
    QAccessible::setActive(false);
}

} // namespace

} // namespace brimsound::tests
