#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Images.h"

#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using testing::ElementsAre;

RetainPtr<UIImage> image(CGSize size)
{
    return filledImage(size, {});
}

class ACell : public testing::Test {
protected:
    ACell()
    {
        cell->setFrame(CGRectMake(0, 0, 320, 60));
        layOut();
    }

    void layOut() const { desktop::layOutTree(*cell); }
    bool showsSelected() const { return cell->selectedBackgroundView()->superview() != nullptr; }
    std::vector<const UIView*> backToFront() const
    {
        std::vector<const UIView*> views;
        for (const auto& view : cell->subviews())
            views.push_back(view.get());
        return views;
    }

    const RetainPtr<UITableViewCell> cell = make<UITableViewCell>(UITableViewCellStyle::Subtitle, "cell");
};

TEST_F(ACell, GivesItsContentsWhatTheAccessoryViewLeavesFree)
{
    EXPECT_EQ(cell->contentView().frame(), CGRectMake(0, 0, 320, 60));
    const auto accessory = make<UIView>(CGRectMake(0, 0, 50, 30));
    cell->setAccessoryView(accessory);
    layOut();
    EXPECT_EQ(accessory->frame(), CGRectMake(255, 15, 50, 30));
    EXPECT_EQ(cell->contentView().frame(), CGRectMake(0, 0, 255, 60));
    EXPECT_EQ(cell->accessoryView(), accessory.get());
    cell->setAccessoryView(nullptr);
    layOut();
    EXPECT_EQ(accessory->superview(), nullptr);
    EXPECT_EQ(cell->contentView().frame(), CGRectMake(0, 0, 320, 60));
}

TEST_F(ACell, HasASecondTextInTheSubtitleStyleOnly)
{
    EXPECT_NE(cell->detailTextLabel(), nullptr);
    const auto plain = make<UITableViewCell>(UITableViewCellStyle::Default, "cell");
    EXPECT_EQ(plain->detailTextLabel(), nullptr);
}

TEST_F(ACell, CentresItsTextWhileTheSecondIsEmpty)
{
    cell->textLabel().setText("Rock");
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), CGRectMake(15, 0, 290, 60));
    cell->detailTextLabel()->setText("loud");
    layOut();
    const auto text = cell->textLabel().frame();
    const auto detail = cell->detailTextLabel()->frame();
    EXPECT_EQ(text.origin.y + text.size.height, detail.origin.y);
    EXPECT_EQ(detail.origin.x, 15);
    EXPECT_NEAR(text.origin.y, 60 - detail.origin.y - detail.size.height, 1) << "as much room above as below";
    EXPECT_GT(text.size.height, detail.size.height);
    cell->detailTextLabel()->setText("");
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), CGRectMake(15, 0, 290, 60));
}

TEST_F(ACell, GivesALargerFontMoreRoom)
{
    cell->detailTextLabel()->setText("loud");
    layOut();
    const double before = cell->textLabel().frame().size.height;
    cell->textLabel().setFont(UIFont::systemFontOfSize(30));
    layOut();
    EXPECT_GT(cell->textLabel().frame().size.height, before);
}

TEST_F(ACell, PlacesItsTextAfterItsImage)
{
    cell->imageView().setImage(image({ 20, 30 }));
    layOut();
    EXPECT_EQ(cell->imageView().frame(), CGRectMake(15, 15, 20, 30));
    EXPECT_EQ(cell->textLabel().frame(), CGRectMake(50, 0, 255, 60));
    cell->imageView().setImage(nullptr);
    layOut();
    EXPECT_EQ(cell->textLabel().frame(), CGRectMake(15, 0, 290, 60));
}

TEST_F(ACell, ShrinksAnImageThatIsTallerThanTheRow)
{
    cell->imageView().setImage(image({ 60, 120 }));
    layOut();
    EXPECT_EQ(cell->imageView().frame(), CGRectMake(15, 0, 30, 60));
}

TEST_F(ACell, HasNoBackgroundViewAtFirstAndAPlainSelectedOne)
{
    EXPECT_EQ(cell->backgroundView(), nullptr);
    ASSERT_NE(cell->selectedBackgroundView(), nullptr);
    EXPECT_EQ(cell->selectedBackgroundView()->bounds(), CGRectMake(0, 0, 320, 60));
    EXPECT_FALSE(cell->selectedBackgroundView()->backgroundColor());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, SizesItsBackgroundsWithItself)
{
    cell->setBackgroundView(make<UIView>());
    layOut();
    EXPECT_EQ(cell->backgroundView()->frame(), CGRectMake(0, 0, 320, 60));
    cell->setFrame(CGRectMake(0, 100, 200, 50));
    layOut();
    EXPECT_EQ(cell->backgroundView()->frame(), CGRectMake(0, 0, 200, 50));
    EXPECT_EQ(cell->selectedBackgroundView()->frame(), CGRectMake(0, 0, 200, 50));
}

TEST_F(ACell, StacksItsBackgroundsBelowItsContents)
{
    cell->setSelected(true, Animated::No);
    EXPECT_THAT(backToFront(), ElementsAre(cell->selectedBackgroundView(), &cell->contentView()));
    const auto background = make<UIView>();
    cell->setBackgroundView(background);
    const auto stacked = ElementsAre(background.get(), cell->selectedBackgroundView(), &cell->contentView());
    EXPECT_THAT(backToFront(), stacked);
    cell->setSelected(false, Animated::No);
    cell->setSelected(true, Animated::No);
    EXPECT_THAT(backToFront(), stacked);
    cell->setBackgroundView(nullptr);
    EXPECT_EQ(background->superview(), nullptr);
    EXPECT_THAT(backToFront(), ElementsAre(cell->selectedBackgroundView(), &cell->contentView()));
}

TEST_F(ACell, ShowsASelectedBackgroundThatItIsGivenWhileItIsSelected)
{
    cell->setSelected(true, Animated::No);
    const auto former = retain(cell->selectedBackgroundView());
    const auto own = make<UIView>();
    cell->setSelectedBackgroundView(own);
    EXPECT_EQ(former->superview(), nullptr);
    EXPECT_EQ(own->superview(), cell.get());
    EXPECT_EQ(own->frame(), CGRectMake(0, 0, 320, 60));
    cell->setSelectedBackgroundView(nullptr);
    EXPECT_EQ(own->superview(), nullptr);
    cell->setSelected(false, Animated::No);
    cell->setSelectedBackgroundView(own);
    EXPECT_EQ(own->superview(), nullptr);
}

TEST_F(ACell, IsSelectedUntilItIsSetNotToBe)
{
    cell->setSelected(true, Animated::No);
    EXPECT_TRUE(cell->isSelected());
    EXPECT_TRUE(showsSelected());
    Clock::shared().advance(10);
    EXPECT_TRUE(showsSelected());
    cell->setSelected(false, Animated::No);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, StaysShadedWhenItIsSelectedBeforeThePressEnds)
{
    auto& peer = desktop::peerOf(*cell);
    peer.setHighlighted(true);
    EXPECT_TRUE(cell->isHighlighted());
    EXPECT_FALSE(cell->isSelected());
    EXPECT_TRUE(showsSelected());
    cell->setSelected(true, Animated::No);
    peer.setHighlighted(false);
    EXPECT_TRUE(showsSelected());
}

TEST_F(ACell, ThatIsNotToBeSelectedLooksAsEver)
{
    cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    cell->setSelected(true, Animated::No);
    EXPECT_TRUE(cell->isSelected());
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, HighlightsTheLabelsAndImagesInIt)
{
    const auto inner = make<UIView>();
    const auto label = make<UILabel>();
    inner->addSubview(*label);
    cell->contentView().addSubview(*inner);
    cell->imageView();
    cell->setSelected(true, Animated::No);
    EXPECT_TRUE(cell->textLabel().isHighlighted());
    EXPECT_TRUE(cell->detailTextLabel()->isHighlighted());
    EXPECT_TRUE(cell->imageView().isHighlighted());
    EXPECT_TRUE(label->isHighlighted());
    cell->setSelected(false, Animated::No);
    EXPECT_FALSE(cell->textLabel().isHighlighted());
    EXPECT_FALSE(cell->imageView().isHighlighted());
    EXPECT_FALSE(label->isHighlighted());
}

TEST_F(ACell, FadesWhenItIsDeselectedInAMovement)
{
    cell->setSelected(true, Animated::No);
    cell->setSelected(false, Animated::Yes);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->alpha(), 1);
    Clock::shared().advance(0.1);
    EXPECT_GT(cell->selectedBackgroundView()->alpha(), 0);
    EXPECT_LT(cell->selectedBackgroundView()->alpha(), 1);
    EXPECT_TRUE(cell->textLabel().isHighlighted()) << "what is dark still wants light text";
    Clock::shared().advance(0.1);
    EXPECT_FALSE(cell->textLabel().isHighlighted());
    EXPECT_TRUE(showsSelected());
    Clock::shared().advance(0.1);
    EXPECT_FALSE(showsSelected());
}

TEST_F(ACell, ThatIsSelectedAgainWhileItFadesIsShadedInFull)
{
    cell->setSelected(true, Animated::No);
    cell->setSelected(false, Animated::Yes);
    Clock::shared().advance(0.2);
    cell->setSelected(true, Animated::No);
    Clock::shared().advance(1);
    EXPECT_TRUE(showsSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->alpha(), 1);
    EXPECT_TRUE(cell->textLabel().isHighlighted());
}

TEST_F(ACell, ThatIsDeselectedAtOnceWhileItFadesEndsItsFade)
{
    cell->setSelected(true, Animated::No);
    cell->setSelected(false, Animated::Yes);
    Clock::shared().advance(0.05);
    cell->setSelected(false, Animated::No);
    EXPECT_FALSE(showsSelected());
    EXPECT_FALSE(cell->textLabel().isHighlighted());
}

} // namespace

} // namespace brimsound::tests
