#include "tests/unit/platform/UIKit/Geometry.h"

#include "platform/UIKit/UITableViewCell.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/table/Cell.h"
#include "toolkit/time/Clock.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

using toolkit::Clock;

class ATableViewCell : public testing::Test {
protected:
    toolkit::Cell& native() const { return desktop::nativeOf<toolkit::Cell>(*cell); }

    const RetainPtr<UITableViewCell> cell = make<UITableViewCell>(UITableViewCellStyle::Subtitle, "cell");
};

TEST_F(ATableViewCell, HasASecondTextInTheSubtitleStyleOnly)
{
    EXPECT_NE(cell->detailTextLabel(), nullptr);
    const auto plain = make<UITableViewCell>(UITableViewCellStyle::Default, "plain");
    EXPECT_EQ(plain->detailTextLabel(), nullptr);
    EXPECT_EQ(plain->reuseIdentifier(), "plain");
}

TEST_F(ATableViewCell, HasTheSamePartsWheneverItIsAsked)
{
    EXPECT_EQ(&cell->contentView(), &cell->contentView());
    EXPECT_EQ(cell->contentView().superview(), cell.get());
    EXPECT_EQ(&cell->textLabel(), &cell->textLabel());
    EXPECT_EQ(cell->textLabel().superview(), &cell->contentView());
    EXPECT_EQ(cell->detailTextLabel(), cell->detailTextLabel());
    EXPECT_EQ(&cell->imageView(), &cell->imageView());
    EXPECT_EQ(cell->imageView().superview(), &cell->contentView());
    ASSERT_NE(cell->selectedBackgroundView(), nullptr);
    EXPECT_EQ(cell->selectedBackgroundView(), cell->selectedBackgroundView());
    EXPECT_FALSE(cell->selectedBackgroundView()->backgroundColor());
}

TEST_F(ATableViewCell, GivesTheViewsBackThatItIsGiven)
{
    EXPECT_EQ(cell->accessoryView(), nullptr);
    EXPECT_EQ(cell->backgroundView(), nullptr);
    const auto accessory = make<UIView>(CGRectMake(0, 0, 50, 30));
    const auto background = make<UIView>();
    const auto selected = make<UIView>();
    cell->setAccessoryView(accessory);
    cell->setBackgroundView(background);
    cell->setSelectedBackgroundView(selected);
    EXPECT_EQ(cell->accessoryView(), accessory.get());
    EXPECT_EQ(accessory->superview(), cell.get());
    EXPECT_EQ(cell->backgroundView(), background.get());
    EXPECT_EQ(background->superview(), cell.get());
    EXPECT_EQ(cell->selectedBackgroundView(), selected.get());
    EXPECT_EQ(selected->superview(), nullptr);
    cell->setAccessoryView(nullptr);
    cell->setBackgroundView(nullptr);
    cell->setSelectedBackgroundView(nullptr);
    EXPECT_EQ(cell->accessoryView(), nullptr);
    EXPECT_EQ(cell->backgroundView(), nullptr);
    EXPECT_EQ(cell->selectedBackgroundView(), nullptr);
}

TEST_F(ATableViewCell, IsSelectableUnlessItsStyleIsNone)
{
    EXPECT_EQ(cell->selectionStyle(), UITableViewCellSelectionStyle::Default);
    cell->setSelectionStyle(UITableViewCellSelectionStyle::None);
    EXPECT_EQ(cell->selectionStyle(), UITableViewCellSelectionStyle::None);
    EXPECT_FALSE(native().isSelectable());
    cell->setSelectionStyle(UITableViewCellSelectionStyle::Default);
    EXPECT_TRUE(native().isSelectable());
}

TEST_F(ATableViewCell, IsDeselectedAtOnceOrWithAFade)
{
    cell->setSelected(true, Animated::No);
    EXPECT_TRUE(cell->isSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->superview(), cell.get());
    cell->setSelected(false, Animated::No);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->superview(), nullptr);

    cell->setSelected(true, Animated::No);
    cell->setSelected(false, Animated::Yes);
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(cell->selectedBackgroundView()->superview(), cell.get());
    Clock::shared().advance(1);
    EXPECT_EQ(cell->selectedBackgroundView()->superview(), nullptr);
}

TEST_F(ATableViewCell, IsHighlightedWhileItIsPressed)
{
    EXPECT_FALSE(cell->isHighlighted());
    native().setHighlighted(true);
    EXPECT_TRUE(cell->isHighlighted());
    EXPECT_FALSE(cell->isSelected());
}

TEST(ADerivedCell, PlacesItsPartsAfterTheCellHasPlacedItsOwn)
{
    struct Indented : UITableViewCell {
        Indented()
            : UITableViewCell(UITableViewCellStyle::Default, "cell")
        {
        }
        void layoutSubviews() override
        {
            UITableViewCell::layoutSubviews();
            auto frame = textLabel().frame();
            frame.origin.x += 20;
            textLabel().setFrame(frame);
        }
    };
    const auto cell = make<Indented>();
    cell->setFrame(CGRectMake(0, 0, 320, 60));
    cell->layoutIfNeeded();
    EXPECT_EQ(cell->textLabel().frame(), CGRectMake(35, 0, 290, 60));
}

} // namespace

} // namespace brimsound::tests
