// Windows for languages that are read from right to left.
#include "toolkit/geometry/LayoutDirection.h"

#include "tests/unit/toolkit/BlankCanvas.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "tests/unit/toolkit/control/KnobFinder.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/control/Slider.h"
#include "toolkit/control/Switch.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/table/DeleteButton.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;
using toolkit::Alert;
using toolkit::Alignment;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::Color;
using toolkit::DeleteButton;
using toolkit::Font;
using toolkit::Label;
using toolkit::LayoutDirection;
using toolkit::make;
using toolkit::makeRect;
using toolkit::mirrored;
using toolkit::Pointer;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::Slider;
using toolkit::Switch;
using toolkit::Table;
using toolkit::TextField;
using toolkit::View;
using toolkit::Window;

struct BlankImage : toolkit::Image {
    BlankImage()
        : Image({ 22, 22 })
    {
    }
    void draw(toolkit::Canvas&, const Rect&) const override { }
};

/// The texts, rectangles and rounded rectangles that are drawn.
class Look : public BlankCanvas {
public:
    void drawLine(
        const std::string& text, const Rect& rect, const Font&, const Color&, Alignment alignment) override
    {
        texts.push_back(text);
        places.push_back(rect);
        alignments.push_back(alignment);
    }
    void drawParagraph(const std::string& text, const Rect& rect, const Font& font, const Color& color,
        Alignment alignment) override
    {
        drawLine(text, rect, font, color, alignment);
    }
    void fillRect(const Rect& rect, const Color&) override { rects.push_back(rect); }
    void fillRoundedRect(const Rect& rect, double, const Color&) override { rects.push_back(rect); }

    std::vector<std::string> texts;
    std::vector<Rect> places;
    std::vector<Alignment> alignments;
    std::vector<Rect> rects;
};

class FromRightToLeft : public testing::Test {
protected:
    template <typename Shown> Ref<Shown> added(const Rect& frame) const
    {
        const auto view = make<Shown>();
        view->setFrame(frame);
        window->add(*view);
        window->layOutAll();
        return view;
    }

    const Ref<Window> window = make<Window>(toolkit::Size { 320, 480 }, LayoutDirection::RightToLeft);
};

TEST_F(FromRightToLeft, ACellHasItsImageAndTextAtTheRightAndItsAccessoryAtTheLeft)
{
    const auto cell = make<Cell>(Cell::Style::Subtitle, "cell");
    cell->setFrame(makeRect(0, 0, 320, 60));
    const auto accessory = make<View>(makeRect(0, 0, 50, 30));
    cell->setAccessory(accessory);
    cell->imageView().setImage(make<BlankImage>());
    cell->textLabel().setText("Rock");
    cell->detailLabel()->setText("loud");
    window->add(*cell);
    window->layOutAll();

    EXPECT_EQ(accessory->frame(), makeRect(15, 15, 50, 30));
    EXPECT_EQ(cell->content().frame(), makeRect(65, 0, 255, 60));
    EXPECT_EQ(cell->imageView().frame(), makeRect(218, 19, 22, 22));
    EXPECT_EQ(cell->textLabel().frame().left(), 15);
    EXPECT_EQ(cell->textLabel().frame().right(), 203);
    EXPECT_EQ(cell->detailLabel()->frame().left(), 15);
    EXPECT_EQ(cell->detailLabel()->frame().right(), 203);
}

TEST_F(FromRightToLeft, ACellsSeparatorEndsBesideTheText)
{
    const auto cell = make<Cell>(Cell::Style::OneText, "cell");
    cell->setFrame(makeRect(0, 0, 320, 44));
    cell->setAppearance({ { 0, 0, 0 }, {}, 0 });
    window->add(*cell);
    Look look;
    cell->drawAbove(look);
    EXPECT_THAT(look.rects, ElementsAre(makeRect(0, 43, 305, 1)));
}

TEST_F(FromRightToLeft, ALabelWithoutAnAlignmentHasItsTextAtTheRight)
{
    const auto label = added<Label>(makeRect(0, 0, 100, 20));
    label->setText("Bass");
    Look look;
    label->draw(look);
    label->setAlignment(Alignment::Left);
    label->draw(look);
    label->setAlignment(Alignment::Center);
    label->draw(look);
    EXPECT_THAT(look.alignments, ElementsAre(Alignment::Right, Alignment::Left, Alignment::Center));
}

TEST_F(FromRightToLeft, ATableHasItsHeadersAndFootersAtTheRight)
{
    Rows rows { { 1 } };
    rows.headers = { "Engine" };
    rows.footers = { "For troubleshooting" };
    const TableInWindow grouped(rows, { 320, 400 }, Table::Style::Grouped, LayoutDirection::RightToLeft);
    Look look;
    grouped.table->draw(look);
    EXPECT_THAT(look.texts, ElementsAre("Engine", "For troubleshooting"));
    EXPECT_THAT(look.alignments, Each(Alignment::Right));
    for (const auto& place : look.places)
        EXPECT_EQ(place.right(), 305);
}

TEST_F(FromRightToLeft, ASwitchIsOffAtTheRight)
{
    const auto toggle = added<Switch>(makeRect(100, 100, 51, 31));
    EXPECT_EQ(knobOf(*toggle), makeRect(22, 2, 27, 27));
    toggle->setOn(true, false);
    EXPECT_EQ(knobOf(*toggle), makeRect(2, 2, 27, 27));
}

TEST_F(FromRightToLeft, ASwitchIsDrawnToTheLeftToBeOn)
{
    const auto toggle = added<Switch>(makeRect(100, 100, 51, 31));
    const auto draw = [&](double way) {
        window->touchDown({ { 125, 115 } });
        window->touchMove({ 125 + way, 115 });
        window->touchUp({ 125 + way, 115 });
    };
    draw(15);
    EXPECT_FALSE(toggle->isOn());
    draw(-15);
    EXPECT_TRUE(toggle->isOn());
    draw(15);
    EXPECT_FALSE(toggle->isOn());
}

TEST_F(FromRightToLeft, ASliderHasItsMinimumAtTheLeft)
{
    const auto slider = added<Slider>(makeRect(0, 100, 228, 44));
    slider->setMaximum(100);
    EXPECT_EQ(knobOf(*slider).left(), 0);
    slider->setValue(100);
    EXPECT_EQ(knobOf(*slider).right(), 228);
    window->touchDown({ { 214, 122 } });
    window->touchMove({ 114, 122 });
    EXPECT_EQ(slider->value(), 50);
    window->touchCancel();
}

TEST_F(FromRightToLeft, AScrollIndicatorIsAtTheLeft)
{
    Rows rows { { 30 } };
    const TableInWindow list(rows, { 320, 400 }, Table::Style::List, LayoutDirection::RightToLeft);
    list.table->scrollBy(10);
    Look look;
    list.table->drawAbove(look);
    ASSERT_EQ(look.rects.size(), 1u);
    EXPECT_EQ(look.rects.front().left(), 3);
}

TEST_F(FromRightToLeft, AnAlertHasItsFirstButtonAtTheRight)
{
    const auto alert = make<Alert>("", "Respring?", std::vector<std::string> { "Not now", "Respring" });
    alert->setFrame(makeRect(0, 0, 270, 120));
    window->add(*alert);
    window->layOutAll();
    EXPECT_EQ(alert->buttons()[0]->frame(), makeRect(135, 76, 135, 44));
    EXPECT_EQ(alert->buttons()[1]->frame(), makeRect(0, 76, 135, 44));
    EXPECT_THAT(
        alert->accessibleChildren(), ElementsAre(alert->buttons()[0].get(), alert->buttons()[1].get()))
        << "in the order of reading";
}

TEST_F(FromRightToLeft, ATextFieldHasItsTextAtTheRightAndItsReturnKeyAtTheLeft)
{
    const auto field = added<TextField>(makeRect(20, 8, 192, 28));
    field->setText("Rock");
    Look look;
    field->draw(look);
    EXPECT_THAT(look.alignments, ElementsAre(Alignment::Right));
    EXPECT_EQ(field->textArea().right(), 192);

    window->focus().giveTo(*field);
    window->layOutAll();
    const double keyWidth = field->returnKey().width();
    EXPECT_EQ(field->returnKey().frame(), makeRect(0, 0, keyWidth, 28));
    EXPECT_EQ(field->textArea(), makeRect(keyWidth, 0, 192 - keyWidth, 28));
    Look edited;
    field->draw(edited);
    field->returnKey().draw(edited);
    EXPECT_THAT(edited.alignments, ElementsAre(Alignment::Right, Alignment::Left));
    EXPECT_EQ(edited.places[0].right(), 192);
    EXPECT_EQ(edited.rects.front().right(), 192 - widthOfLine("Rock", *field->font())) << "the caret";
    EXPECT_EQ(edited.places[1].left(), 0);
}

/// A list of ten rows that can be deleted.
class FromRightToLeftASwipedRow : public testing::Test {
protected:
    FromRightToLeftASwipedRow()
    {
        rows.isDeletable = [](toolkit::RowPath) { return true; };
    }

    /// A drag in the third row that is not lifted.
    void drag(double way) const
    {
        list.window->touchDown({ { 150, 100 }, Pointer::Finger });
        list.window->touchMove({ 150 + way / 2, 101 });
        list.window->touchMove({ 150 + way, 102 });
    }

    Rows rows { { 10 } };
    const TableInWindow list { rows, { 320, 400 }, Table::Style::List, LayoutDirection::RightToLeft };
};

TEST_F(FromRightToLeftASwipedRow, FollowsAFingerToTheRightAndUncoversAButtonAtTheLeft)
{
    drag(70);
    EXPECT_EQ(list.cell(2)->frame(), makeRect(60, 88, 320, 44));
    ASSERT_NE(list.table->swipe().button(), nullptr);
    EXPECT_EQ(list.table->swipe().button()->frame(), makeRect(0, 88, 60, 44));
    // The button shows the end of its title's place.
    Look look;
    list.table->swipe().button()->draw(look);
    EXPECT_THAT(look.places, ElementsAre(makeRect(60 - DeleteButton::width, 0, DeleteButton::width, 44)));
}

TEST_F(FromRightToLeftASwipedRow, StaysInPlaceUnderAFingerThatMovesToTheLeft)
{
    drag(-70);
    EXPECT_FALSE(list.table->swipe().isOpen());
    EXPECT_EQ(list.cell(2)->frame().left(), 0);
}

TEST_F(FromRightToLeftASwipedRow, LeavesToTheRightWhenItIsDeleted)
{
    const auto cell = toolkit::keep(list.cell(2));
    list.table->deleteRow({ 0, 2 });
    EXPECT_EQ(cell->frame().left(), 320);
    Clock::shared().advance(1);
}

} // namespace

TEST(AMirroredRectangle, IsAsFarFromTheRightAsItWasFromTheLeft)
{
    EXPECT_EQ(mirrored(makeRect(15, 7, 50, 30), 320), makeRect(255, 7, 50, 30));
    EXPECT_EQ(mirrored(makeRect(-10, 7, 50, 30), 100), makeRect(60, 7, 50, 30));
}

} // namespace brimsound::tests
