#include "settings/GainColor.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;

class SliderCell : public testing::Test {
protected:
    /// The x coordinate of the bar for a preamp, computed independently of the pane: where a thumb of that
    /// width has its center at the negated value.
    static double barX(const Pane& pane, double preamp)
    {
        const auto frame = pane.slider(0).frame();
        const auto* thumb = pane.slider(0).currentThumbImage();
        const double thumbWidth = thumb ? thumb->size().width : 0;
        return frame.origin.x + thumbWidth / 2 + (frame.size.width - thumbWidth) * (12 - preamp) / 24;
    }

    TestPlatform platform;
};

using TheSliderRow = SliderCell;
using TheGainColor = SliderCell;
using TheBlackBar = SliderCell;

TEST_F(TheSliderRow, IsTheOnlyTallOne)
{
    const auto controller = openController();
    auto& table = controller->table();
    EXPECT_EQ(controller->tableViewHeightForRowAtIndexPath(table, { 2, 0 }), 484);
    for (const NSIndexPath path : { NSIndexPath { 0, 0 }, { 1, 0 }, { 2, 1 }, { 3, 0 }, { 12, 2 } })
        EXPECT_EQ(controller->tableViewHeightForRowAtIndexPath(table, path), 44);
}

TEST_F(TheSliderRow, IsACellOfItsOwnClassThatCannotBeSelected)
{
    const Pane pane(platform);
    EXPECT_TRUE(dynamic_cast<BRSliderCell*>(&pane.cell()));
    EXPECT_EQ(pane.cell().reuseIdentifier(), "slidershit");
    EXPECT_EQ(pane.cell().selectionStyle(), UITableViewCellSelectionStyle::None);
}

TEST_F(TheSliderRow, LeavesTheOtherRowsToTheListController)
{
    const auto controller = openController();
    const auto cell = controller->tableViewCellForRowAtIndexPath(controller->table(), { 0, 0 });
    ASSERT_TRUE(cell);
    EXPECT_FALSE(dynamic_cast<BRSliderCell*>(cell.get()));
    EXPECT_EQ(controller->sliders(), nullptr);
}

TEST_F(TheSliderRow, SharesItsListsWithTheCell)
{
    const Pane pane(platform);
    const auto& cell = static_cast<BRSliderCell&>(pane.cell());
    EXPECT_EQ(cell.sliders().get(), pane.controller().sliders());
    EXPECT_EQ(cell.labels().get(), pane.controller().labels());
}

TEST_F(TheSliderRow, LaysOutElevenStripsOf44Points)
{
    const Pane pane(platform);
    ASSERT_EQ(pane.controller().sliders()->size(), 11u);
    ASSERT_EQ(pane.controller().labels()->size(), 11u);
    for (std::size_t i = 0; i < 11; ++i) {
        const auto y = static_cast<double>(i) * 44;
        EXPECT_EQ(pane.slider(i).frame(), CGRectMake(35, y, 280, 44)) << i;
        EXPECT_EQ(pane.label(i).frame(), CGRectMake(5, y, 25, 44)) << i;
    }
}

TEST_F(TheSliderRow, GivesEverySliderTheRangeOfTwelveDecibels)
{
    const Pane pane(platform);
    for (const auto& slider : *pane.controller().sliders()) {
        EXPECT_EQ(slider->minimumValue(), -12);
        EXPECT_EQ(slider->maximumValue(), 12);
    }
}

TEST_F(TheSliderRow, CaptionsEverySlider)
{
    const Pane pane(platform);
    EXPECT_THAT(pane.captions(),
        ElementsAre("Pre", "60", "170", "310", "600", "1K", "3K", "6K", "12K", "14K", "16K"));
    for (std::size_t i = 0; i < 11; ++i) {
        const auto& label = pane.label(i);
        EXPECT_EQ(pane.slider(i).accessibilityLabel(), label.text());
        EXPECT_EQ(label.textAlignment(), NSTextAlignment::Center);
        EXPECT_EQ(label.font()->pointSize(), 10);
        EXPECT_EQ(label.font()->fontName(), UILabel().font()->fontName());
        CGFloat red = 1;
        CGFloat green = 1;
        CGFloat blue = 1;
        CGFloat alpha = 0;
        label.textColor()->getRedGreenBlueAlpha(red, green, blue, alpha);
        EXPECT_THAT((std::vector { red, green, blue, alpha }), ElementsAre(0, 0, 0, 1));
        label.backgroundColor()->getRedGreenBlueAlpha(red, green, blue, alpha);
        EXPECT_EQ(alpha, 0);
    }
}

TEST_F(TheSliderRow, PutsTheBarBehindTheSlidersAndEachSliderBelowItsCaption)
{
    const Pane pane(platform);
    const auto& views = pane.cell().contentView().subviews();
    const auto placeOf = [&](const UIView& view) {
        return std::ranges::find_if(views, [&](const auto& other) { return other == &view; }) - views.begin();
    };
    auto last = placeOf(*pane.controller().blackBar());
    EXPECT_LT(last, std::ssize(views));
    for (std::size_t i = 0; i < 11; ++i) {
        EXPECT_LT(last, placeOf(pane.slider(i)));
        EXPECT_LT(placeOf(pane.slider(i)), placeOf(pane.label(i)));
        last = placeOf(pane.label(i));
    }
}

TEST_F(TheSliderRow, ShowsTheGainsOfTheFile)
{
    auto preferences = preferencesWith({ 1, 2, 3, 4, 5, 6, -7, -8, -9, -10.5f });
    preferences.set("PREAMP", -4.5f);
    platform.writePreferencesFile(PropertyList(preferences));
    const Pane pane(platform);
    EXPECT_THAT(pane.values(), ElementsAre(-4.5f, 1, 2, 3, 4, 5, 6, -7, -8, -9, -10.5f));
    EXPECT_THAT(pane.color(1), ElementsAre(DoubleNear((1 - 4.5 + 12) / 12, 1e-6), 1, 0, 1));
}

TEST_F(TheSliderRow, StartsFlatAndYellowWithoutAFile)
{
    const Pane pane(platform);
    EXPECT_THAT(pane.values(), Each(0));
    EXPECT_THAT(pane.color(0), ElementsAre(0, 0, 0, 1));
    for (std::size_t i = 1; i < 11; ++i)
        EXPECT_THAT(pane.color(i), ElementsAre(1, 1, 0, 1)) << i;
    EXPECT_DOUBLE_EQ(pane.controller().blackBar()->frame().origin.x, 35 + 280 / 2.0);
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(TheSliderRow, ConvertsMissingAndInvalidGainsAsFoundationDoes)
{
    platform.writePreferencesFile(PropertyList::Dictionary {
        { "PEAKING_EQ_VALUES", PropertyList::Array { "4.5", true, "loud", PropertyList::Array(), 3 } },
        { "PREAMP", "-2" } });
    const Pane pane(platform);
    EXPECT_THAT(pane.values(), ElementsAre(-2, 4.5f, 1, 0, 0, 3, 0, 0, 0, 0, 0));
}

TEST_F(TheSliderRow, ClampsGainsBeyondTheRange)
{
    platform.writePreferencesFile(PropertyList(preferencesWith({ 40, -40 })));
    const Pane pane(platform);
    EXPECT_EQ(pane.slider(1).value(), 12);
    EXPECT_EQ(pane.slider(2).value(), -12);
}

TEST_F(TheSliderRow, IsBuiltOnceAndComesBackWhenTheTableReusesIt)
{
    const Pane pane(platform);
    auto& table = pane.controller().table();
    const auto views = pane.cell().contentView().subviews().size();
    const auto first = pane.controller().sliders();
    const auto again = pane.controller().tableViewCellForRowAtIndexPath(table, { 2, 0 });
    EXPECT_EQ(pane.controller().sliders(), first);
    EXPECT_EQ(pane.controller().sliders()->size(), 11u);
    EXPECT_EQ(pane.cell().contentView().subviews().size(), views);
    // The table cannot reuse the first cell, so the new one stays empty.
    EXPECT_FALSE(again == &pane.cell());
    for (const auto& slider : *first)
        EXPECT_FALSE(slider->superview() == &again->contentView());
    EXPECT_EQ(static_cast<BRSliderCell&>(*again).sliders(), nullptr);
    again->layoutSubviews();
    EXPECT_EQ(again->contentView().subviews().size(), 1u) << "only the cell's own label";
}

TEST_F(TheSliderRow, StretchesTheSlidersWithTheCellAndKeepsTheCaptions)
{
    const Pane pane(platform);
    const auto barBefore = pane.controller().blackBar()->frame();
    auto& content = pane.cell().contentView();
    pane.cell().setFrame(CGRectMake(0, 0, 480, 484));
    pane.cell().layoutSubviews();
    const auto width = content.frame().size.width;
    ASSERT_EQ(width, 480);
    for (std::size_t i = 0; i < 11; ++i) {
        const auto y = static_cast<double>(i) * 44;
        EXPECT_EQ(pane.slider(i).frame(), CGRectMake(35, y, width - 40, 44)) << i;
        EXPECT_EQ(pane.label(i).frame(), CGRectMake(5, y, 25, 44)) << i;
    }
    // The bar is moved with the next change of the preamp.
    EXPECT_EQ(pane.controller().blackBar()->frame(), barBefore);
    pane.controller().updateBlackBar();
    EXPECT_DOUBLE_EQ(pane.controller().blackBar()->frame().origin.x, 35 + 440 / 2.0);
}

TEST_F(TheSliderRow, KeepsEachSlidersPlaceAndHeightWhenItStretches)
{
    const Pane pane(platform);
    pane.slider(3).setFrame(CGRectMake(1, 140, 2, 30));
    pane.cell().setFrame(CGRectMake(0, 0, 480, 600));
    pane.cell().layoutSubviews();
    EXPECT_EQ(pane.slider(3).frame(), CGRectMake(35, 140, 440, 30));
    EXPECT_EQ(pane.slider(4).frame(), CGRectMake(35, 176, 440, 44));
}

TEST_F(TheSliderRow, ComesBackWithItsSlidersWhenItWasScrolledAway)
{
    const auto controller = openController();
    auto& table = controller->table();
    platform.showInWindow(table, { 320, 100 });
    const auto scrollTo = [&](CGPoint offset) {
        table.setContentOffset(offset);
        platform.layOut();
    };
    const auto sliders = table.rectForRowAtIndexPath(sliderRow).origin;
    for (int i = 0; i < 2; ++i) {
        scrollTo(sliders);
        const auto* cell = table.cellForRowAtIndexPath(sliderRow);
        ASSERT_NE(cell, nullptr);
        EXPECT_EQ(controller->blackBar()->superview(), &cell->contentView());
        scrollTo({});
        EXPECT_EQ(table.cellForRowAtIndexPath(sliderRow), nullptr);
    }
}

TEST_F(TheSliderRow, WiresTouchesAndNotValueChanges)
{
    const Pane pane(platform);
    const auto linesFor = [&](UIControlEvents event) {
        pane.slider(3).sendActionsForControlEvents(event);
        return pane.trace().size();
    };
    for (const auto event :
        { UIControlEventTouchDown, UIControlEventTouchDragInside, UIControlEventTouchDragOutside })
        EXPECT_EQ(linesFor(event), 1u) << event;
    for (const auto event : { UIControlEventTouchUpInside, UIControlEventTouchUpOutside,
             UIControlEventTouchCancel, UIControlEventEditingDidEnd, UIControlEventEditingDidEndOnExit })
        EXPECT_EQ(linesFor(event), 2u) << event;
    for (const auto event :
        { UIControlEventValueChanged, UIControlEventTouchDragEnter, UIControlEventTouchDragExit })
        EXPECT_EQ(linesFor(event), 0u) << event;
}

TEST_F(TheSliderRow, NumbersTheControlEventsAsThePlatformDoes)
{
    EXPECT_EQ(UIControlEventTouchDown | UIControlEventTouchDragInside | UIControlEventTouchDragOutside, 0xDu);
    EXPECT_EQ(UIControlEventTouchUpInside | UIControlEventTouchUpOutside | UIControlEventTouchCancel
            | UIControlEventEditingDidEnd | UIControlEventEditingDidEndOnExit,
        0xC01C0u);
}

TEST_F(TheGainColor, RunsFromBlackThroughGreenYellowAndRedToBlack)
{
    const std::vector<std::tuple<float, float, float>> telling { { -24, 0, 0 }, { -18, 0, 0.5f },
        { -12, 0, 1 }, { -6, 0.5f, 1 }, { 0, 1, 1 }, { 6, 1, 0.5f }, { 12, 1, 0 }, { 18, 0.5f, 0 },
        { 24, 0, 0 } };
    for (const auto& [gain, red, green] : telling) {
        EXPECT_FLOAT_EQ(fadingGainColor(gain).red, red) << gain;
        EXPECT_FLOAT_EQ(fadingGainColor(gain).green, green) << gain;
    }
}

TEST_F(TheGainColor, IsThatOfTheSumOfBandAndPreamp)
{
    const Pane pane(platform);
    const auto colorFor = [&](float preamp, float band) {
        pane.slider(0).setValue(preamp);
        pane.slider(4).setValue(band);
        pane.controller().updateSliderColor(pane.slider(4));
        return pane.color(4);
    };
    EXPECT_THAT(colorFor(-12, -12), ElementsAre(0, 0, 0, 1));
    EXPECT_THAT(colorFor(6, 6), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(colorFor(6, 12), ElementsAre(0.5, 0, 0, 1));
}

TEST_F(TheGainColor, OfOneBandIsUpdatedAlone)
{
    const Pane pane(platform);
    pane.slider(4).setValue(12);
    pane.slider(5).setValue(12);
    pane.controller().updateSliderColor(pane.slider(4));
    EXPECT_THAT(pane.color(4), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(pane.color(5), ElementsAre(1, 1, 0, 1));
}

TEST_F(TheGainColor, OfAllBandsIsUpdatedWithThePreampWhichStaysBlack)
{
    const Pane pane(platform);
    const auto barBefore = pane.controller().blackBar()->frame().origin.x;
    pane.slider(0).setValue(-12);
    pane.controller().updateSliderColor(pane.slider(0));
    for (std::size_t i = 1; i < 11; ++i)
        EXPECT_THAT(pane.color(i), ElementsAre(0, 1, 0, 1)) << i;
    EXPECT_THAT(pane.color(0), ElementsAre(0, 0, 0, 1));
    EXPECT_GT(pane.controller().blackBar()->frame().origin.x, barBefore);
}

TEST_F(TheBlackBar, RunsOverTheBandStripsInLightGray)
{
    const Pane pane(platform);
    const auto* bar = pane.controller().blackBar();
    EXPECT_EQ(bar->frame().origin.y, 54);
    EXPECT_EQ(bar->frame().size, (CGSize { 1, 420 }));
    EXPECT_EQ(bar->superview(), &pane.cell().contentView());
    CGFloat red = 0;
    CGFloat green = 0;
    CGFloat blue = 0;
    CGFloat alpha = 0;
    bar->backgroundColor()->getRedGreenBlueAlpha(red, green, blue, alpha);
    EXPECT_THAT((std::vector { red, green, blue, alpha }), ElementsAre(2.0 / 3, 2.0 / 3, 2.0 / 3, 1));
}

TEST_F(TheBlackBar, IsWhereABandWouldCancelThePreamp)
{
    const Pane pane(platform);
    for (const float preamp : { -12.0f, -4.5f, 0.0f, 3.0f, 12.0f }) {
        pane.slider(0).setValue(preamp);
        pane.controller().updateBlackBar();
        EXPECT_NEAR(pane.controller().blackBar()->frame().origin.x, barX(pane, preamp), 1e-4) << preamp;
        EXPECT_EQ(pane.controller().blackBar()->frame().size, (CGSize { 1, 420 }));
    }
}

TEST_F(TheBlackBar, IsIgnoredBeforeTheRowExists)
{
    const auto controller = openController();
    controller->updateBlackBar();
    EXPECT_EQ(controller->blackBar(), nullptr);
}

} // namespace
} // namespace brimsound::tests
