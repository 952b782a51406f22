#include "tests/unit/toolkit/Geometry.h"

#include "toolkit/table/Cell.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::Label;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Ref;
using toolkit::Size;
using toolkit::View;

struct BlankImage : toolkit::Image {
    explicit BlankImage(Size size)
        : Image(size)
    {
    }
    void draw(toolkit::Canvas&, const toolkit::Rect&) const override { }
};

class ACell : public testing::Test {
protected:
    ACell()
    {
        cell->setFrame(makeRect(0, 0, 320, 60));
        layOut();
    }

    void layOut() const { cell->layOutIfNeeded(); }
    bool showsSelected() const { return cell->selectedBackgroundView()->parent() != nullptr; }
    std::vector<const View*> backToFront() const
    {
        std::vector<const View*> views;
        for (const auto& view : cell->children())
            views.push_back(view.get());
        return views;
    }

    const Ref<Cell> cell = make<Cell>(Cell::Style::Subtitle, "cell");
};

TEST_F(ACell, GivesItsContentsWhatTheAccessoryViewLeavesFree)
{
    EXPECT_EQ(cell->content().frame(), makeRect(0, 0, 320, 60));
    const auto accessory = make<View>(makeRect(0, 0, 50, 30));
    cell->setAccessory(accessory);
    layOut();
    EXPECT_EQ(accessory->frame(), makeRect(255, 15, 50, 30));
    EXPECT_EQ(cell->content().frame(), makeRect(0, 0, 255, 60));
    EXPECT_EQ(cell->accessory(), accessory.get());
    cell->setAccessory(nullptr);
    layOut();
    EXPECT_EQ(accessory->parent(), nullptr);
    EXPECT_EQ(cell->content().frame(), makeRect(0, 0, 320, 60));
}

TEST_F(ACell, HasASecondTextInTheSubtitleStyleOnly)
{
    EXPECT_NE(cell->detailLabel(), nullptr);
    const auto plain = make<Cell>(Cell::Style::OneText, "cell");
    EXPECT_EQ(plain->detailLabel(), nullptr);
}

TEST_F(ACell, CentersItsTextWhileTheSecondIsEmpty)
{
    cell->textLabel().setText("Rock");
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), makeRect(15, 0, 290, 60));
    cell->detailLabel()->setText("loud");
    layOut();
    const auto text = cell->textLabel().frame();
    const auto detail = cell->detailLabel()->frame();
    EXPECT_EQ(text.bottom(), detail.top());
    EXPECT_EQ(detail.left(), 15);
    EXPECT_NEAR(text.top(), 60 - detail.bottom(), 1) << "as much room above as below";
    EXPECT_GT(text.size.height, detail.size.height);
    cell->detailLabel()->setText("");
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), makeRect(15, 0, 290, 60));
}

TEST_F(ACell, GivesALargerFontMoreRoom)
{
    cell->detailLabel()->setText("loud");
    layOut();
    const double before = cell->textLabel().frame().size.height;
    cell->textLabel().setFont(toolkit::Font { {}, 30 });
    layOut();
    EXPECT_GT(cell->textLabel().frame().size.height, before);
}

TEST_F(ACell, PlacesItsTextAfterItsImage)
{
    cell->imageView().setImage(make<BlankImage>(Size { 20, 30 }));
    layOut();
    EXPECT_EQ(cell->imageView().frame(), makeRect(15, 15, 20, 30));
    EXPECT_EQ(cell->textLabel().frame(), makeRect(50, 0, 255, 60));
    cell->imageView().setImage(nullptr);
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), makeRect(15, 0, 290, 60));
}

TEST_F(ACell, ShrinksAnImageThatIsTallerThanTheRow)
{
    cell->imageView().setImage(make<BlankImage>(Size { 60, 120 }));
    layOut();
    EXPECT_EQ(cell->imageView().frame(), makeRect(15, 0, 30, 60));
}

TEST_F(ACell, HasNoBackgroundViewAtFirstAndAPlainSelectedOne)
{
    EXPECT_EQ(cell->backgroundView(), nullptr);
    ASSERT_NE(cell->selectedBackgroundView(), nullptr);
    EXPECT_EQ(cell->selectedBackgroundView()->bounds(), makeRect(0, 0, 320, 60));
    EXPECT_FALSE(cell->selectedBackgroundView()->background());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, SizesItsBackgroundsWithItself)
{
    cell->setBackgroundView(make<View>());
    layOut();
    EXPECT_EQ(cell->backgroundView()->frame(), makeRect(0, 0, 320, 60));
    cell->setFrame(makeRect(0, 100, 200, 50));
    layOut();
    EXPECT_EQ(cell->backgroundView()->frame(), makeRect(0, 0, 200, 50));
    EXPECT_EQ(cell->selectedBackgroundView()->frame(), makeRect(0, 0, 200, 50));
}

TEST_F(ACell, StacksItsBackgroundsBelowItsContents)
{
    cell->setSelected(true, false);
    EXPECT_THAT(backToFront(), ElementsAre(cell->selectedBackgroundView(), &cell->content()));
    const auto background = make<View>();
    cell->setBackgroundView(background);
    const auto stacked = ElementsAre(background.get(), cell->selectedBackgroundView(), &cell->content());
    EXPECT_THAT(backToFront(), stacked);
    cell->setSelected(false, false);
    cell->setSelected(true, false);
    EXPECT_THAT(backToFront(), stacked);
    cell->setBackgroundView(nullptr);
    EXPECT_EQ(background->parent(), nullptr);
    EXPECT_THAT(backToFront(), ElementsAre(cell->selectedBackgroundView(), &cell->content()));
}

TEST_F(ACell, ShowsASelectedBackgroundThatItIsGivenWhileItIsSelected)
{
    cell->setSelected(true, false);
    const auto former = keep(cell->selectedBackgroundView());
    const auto own = make<View>();
    cell->setSelectedBackgroundView(own);
    EXPECT_EQ(former->parent(), nullptr);
    EXPECT_EQ(own->parent(), cell.get());
    EXPECT_EQ(own->frame(), makeRect(0, 0, 320, 60));
    cell->setSelectedBackgroundView(nullptr);
    EXPECT_EQ(own->parent(), nullptr);
    cell->setSelected(false, false);
    cell->setSelectedBackgroundView(own);
    EXPECT_EQ(own->parent(), nullptr);
}

TEST_F(ACell, IsSelectedUntilItIsSetNotToBe)
{
    cell->setSelected(true, false);
    EXPECT_TRUE(cell->isSelected());
    EXPECT_TRUE(showsSelected());
    Clock::shared().advance(10);
    EXPECT_TRUE(showsSelected());
    cell->setSelected(false, false);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, StaysShadedWhenItIsSelectedBeforeThePressEnds)
{
    cell->setHighlighted(true);
    EXPECT_TRUE(cell->isHighlighted());
    EXPECT_FALSE(cell->isSelected());
    EXPECT_TRUE(showsSelected());
    cell->setSelected(true, false);
    cell->setHighlighted(false);
    EXPECT_TRUE(showsSelected());
}

TEST_F(ACell, ThatIsNotSelectableDoesNotLookSelected)
{
    cell->setSelectable(false);
    cell->setSelected(true, false);
    EXPECT_TRUE(cell->isSelected());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, HighlightsTheLabelsAndImagesInIt)
{
    const auto inner = make<View>();
    const auto label = make<Label>();
    inner->add(*label);
    cell->content().add(*inner);
    cell->imageView();
    cell->setSelected(true, false);
    EXPECT_TRUE(cell->textLabel().isHighlighted());
    EXPECT_TRUE(cell->detailLabel()->isHighlighted());
    EXPECT_TRUE(cell->imageView().isHighlighted());
    EXPECT_TRUE(label->isHighlighted());
    cell->setSelected(false, false);
    EXPECT_FALSE(cell->textLabel().isHighlighted());
    EXPECT_FALSE(cell->imageView().isHighlighted());
    EXPECT_FALSE(label->isHighlighted());
}

TEST_F(ACell, FadesWhenItIsDeselectedWithAnAnimation)
{
    cell->setSelected(true, false);
    cell->setSelected(false, true);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->alpha(), 1);
    Clock::shared().advance(0.1);
    EXPECT_GT(cell->selectedBackgroundView()->alpha(), 0);
    EXPECT_LT(cell->selectedBackgroundView()->alpha(), 1);
    EXPECT_TRUE(cell->textLabel().isHighlighted()) << "the text must be readable on the dark background";
    Clock::shared().advance(0.1);
    EXPECT_FALSE(cell->textLabel().isHighlighted());
    EXPECT_TRUE(showsSelected());
    Clock::shared().advance(0.1);
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, ThatIsSelectedAgainWhileItFadesIsShadedInFull)
{
    cell->setSelected(true, false);
    cell->setSelected(false, true);
    Clock::shared().advance(0.2);
    cell->setSelected(true, false);
    Clock::shared().advance(1);
    EXPECT_TRUE(showsSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->alpha(), 1);
    EXPECT_TRUE(cell->textLabel().isHighlighted());
}

TEST_F(ACell, ThatIsDeselectedAtOnceWhileItFadesEndsItsFade)
{
    cell->setSelected(true, false);
    cell->setSelected(false, true);
    Clock::shared().advance(0.05);
    cell->setSelected(false, false);
    EXPECT_FALSE(showsSelected());
    EXPECT_FALSE(cell->textLabel().isHighlighted());
}

TEST_F(ACell, LooksNewAgainAtOnceWhenItIsPreparedForReuse)
{
    cell->setHighlighted(true);
    cell->setSelected(true, false);
    cell->setSelected(false, true);
    cell->prepareForReuse();
    EXPECT_FALSE(cell->isSelected());
    EXPECT_FALSE(cell->isHighlighted());
    EXPECT_FALSE(showsSelected());
    EXPECT_FALSE(cell->textLabel().isHighlighted());
}

TEST(TheLabelsOfACell, MayOutliveTheCell)
{
    auto cell = make<Cell>(Cell::Style::Subtitle, "cell");
    const auto text = keep(&cell->textLabel());
    const auto detail = keep(cell->detailLabel());
    const auto imageView = keep(&cell->imageView());
    cell = nullptr;
    text->setText("Rock");
    detail->setText("loud");
    imageView->setImage(make<BlankImage>(Size { 20, 30 }));
    EXPECT_EQ(text->parent(), nullptr);
}

} // namespace

} // namespace brimsound::tests
