#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/Images.h"
#include "tests/unit/settings/Pane.h"
#include "tests/unit/settings/PresetPane.h"

#include <gmock/gmock.h>

#include <array>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

PropertyList::Array rising()
{
    return { -4.5f, -3.5f, -2.5f, -1.5f, -0.5f, 0.5f, 1.5f, 2.5f, 3.5f, 4.5f };
}

PropertyList::Array level(float gain)
{
    PropertyList::Array gains(10, gain);
    return gains;
}

PropertyList::Dictionary twoPresets()
{
    return { { "Mine", rising() }, { "Yours", level(3) } };
}

/// Preferences with those presets, ten zero gains and the current preamp.
PropertyList::Dictionary preferencesWithPresets(const PropertyList& presets)
{
    return { { peakingEqValuesKey, level(0) }, { autoPreampKey, false }, { presetsKey, presets } };
}

PropertyList storedValue(const char* key)
{
    const auto preferences = storedPreferences();
    const auto* value = preferences.find(key);
    return value ? *value : PropertyList();
}

std::vector<std::string> storedNames()
{
    const auto presets = storedValue(presetsKey);
    return presets.asDictionary() ? keysOf(*presets.asDictionary()) : std::vector<std::string>();
}

std::vector<float> storedGains(const std::string& name)
{
    const auto presets = storedValue(presetsKey);
    return presets.asDictionary() ? floatsIn(*presets.asDictionary(), name) : std::vector<float>();
}

class ThePresetList : public testing::Test {
protected:
    ThePresetList() { _notificationsToSkip = 0; }

    void storePresets(const PropertyList& presets) { store(preferencesWithPresets(presets)); }
    void store(const PropertyList::Dictionary& preferences) { platform.writePreferencesFile(preferences); }

    TestPlatform platform;
};

const std::vector<std::string> builtinNames { "Flat", "Full bass", "Full bass/treble", "Classical", "Club",
    "Dance", "Earbuds", "Large Hall", "Live", "Party", "Pop", "Reggae", "Rock", "Soft", "Techno",
    "Full treble" };

TEST_F(ThePresetList, HasTheSaveRowAndARowForEachPreset)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    auto& panel = pane.panel();
    EXPECT_EQ(panel.numberOfSectionsInTableView(pane.list()), 2u);
    EXPECT_EQ(panel.tableViewNumberOfRowsInSection(pane.list(), 0), 1u);
    EXPECT_EQ(panel.tableViewNumberOfRowsInSection(pane.list(), 1), 2u);
    EXPECT_EQ(panel.tableViewTitleForHeaderInSection(pane.list(), 0), "");
    EXPECT_EQ(panel.tableViewTitleForHeaderInSection(pane.list(), 1), "");
    EXPECT_THAT(pane.names(), areKeys({ "Mine", "Yours" }));
    EXPECT_EQ(pane.cell({ 1, 0 })->textLabel().text(), pane.names()[0]);
    EXPECT_EQ(pane.cell({ 1, 1 })->textLabel().text(), pane.names()[1]);
}

TEST_F(ThePresetList, LetsEveryPresetBeDeletedButNotTheSaveRow)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_FALSE(pane.panel().tableViewCanEditRowAtIndexPath(pane.list(), { 0, 0 }));
    EXPECT_TRUE(pane.panel().tableViewCanEditRowAtIndexPath(pane.list(), { 1, 0 }));
    EXPECT_TRUE(pane.panel().tableViewCanEditRowAtIndexPath(pane.list(), { 1, 15 }));
}

TEST_F(ThePresetList, ShowsTheBuiltInPresetsWithoutAFileAndWritesNone)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys(builtinNames));
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(ThePresetList, ShowsTheBuiltInPresetsWhereTheFileHasNoneAndLeavesItAsItIs)
{
    for (const auto& presets : { PropertyList(PropertyList::Dictionary()), PropertyList("nonsense"),
             PropertyList(PropertyList::Array { 1 }) }) {
        storePresets(presets);
        const auto file = platform.preferencesFile();
        const PresetPane pane(platform);
        pane.showPresets();
        EXPECT_THAT(pane.names(), areKeys(builtinNames));
        EXPECT_EQ(platform.preferencesFile(), file);
    }
    store({ { preampKey, 1 } });
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys(builtinNames));
}

TEST_F(ThePresetList, IsReadEachTimeItIsShown)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    storePresets(PropertyList::Dictionary { { "Theirs", level(1) } });
    EXPECT_THAT(pane.names(), areKeys({ "Mine", "Yours" }));
    pane.showPresets();
    EXPECT_THAT(pane.names(), ElementsAre("Theirs"));
}

TEST_F(ThePresetList, ShowsTheRowsOfEachReading)
{
    storePresets(PropertyList::Dictionary { { "Mine", rising() } });
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    storePresets(PropertyList::Dictionary { { "Theirs", level(1) } });
    pane.showPresets();
    platform.layOut();
    const auto* cell = pane.list().cellForRowAtIndexPath({ 1, 0 });
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->textLabel().text(), "Theirs");
}

TEST_F(ThePresetList, LogsItsReading)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(pane.trace(),
        ElementsAre("log Brimsound: getting preferences",
            "log Brimsound: /getting preferences: PropertyListDictionary;"));
}

TEST_F(ThePresetList, KeepsTheOrderOfTheFile)
{
    storePresets(PropertyList::Dictionary { { "Zebra", level(0) }, { "apple", level(0) },
        { "Apple", level(0) }, { "\xF0\x9F\x8E\xB8", level(0) } });
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys({ "Zebra", "apple", "Apple", "\xF0\x9F\x8E\xB8" }));
}

TEST(LookingUpByPosition, ReturnsTheValueAndItsKey)
{
    const auto presets = twoPresets();
    std::optional<std::string> key = "before";
    const auto* value = PlaylistSaver::getObjectAtIndexForDictKey(1, presets, &key);
    EXPECT_EQ(value, presets.find("Yours"));
    EXPECT_EQ(key, "Yours");
    EXPECT_EQ(PlaylistSaver::getObjectAtIndexForDictKey(0, presets, nullptr), presets.find("Mine"));
}

TEST(LookingUpByPosition, ReturnsNothingBeyondTheEnd)
{
    std::optional<std::string> key = "before";
    EXPECT_EQ(PlaylistSaver::getObjectAtIndexForDictKey(2, twoPresets(), &key), nullptr);
    EXPECT_EQ(key, std::nullopt);
    EXPECT_EQ(PlaylistSaver::getObjectAtIndexForDictKey(0, {}, nullptr), nullptr);
}

// Rows.

const SBEqualizerBackgroundView& backgroundCurve(const UITableViewCell& cell)
{
    return static_cast<const SBEqualizerBackgroundView&>(*cell.backgroundView());
}

UIView* pressedBackdrop(const UITableViewCell& cell)
{
    return cell.selectedBackgroundView()->viewWithTag(59304);
}

SBEqualizerBackgroundView& pressedCurve(const UITableViewCell& cell)
{
    return static_cast<SBEqualizerBackgroundView&>(*pressedBackdrop(cell)->viewWithTag(23894));
}

std::vector<float> gainsOf(const SBEqualizerBackgroundView& curve)
{
    return { curve.gains(), curve.gains() + 10 };
}

using Components = std::array<CGFloat, 4>;

Components componentsOf(const RetainPtr<UIColor>& color)
{
    Components components {};
    auto& [red, green, blue, alpha] = components;
    color->getRedGreenBlueAlpha(red, green, blue, alpha);
    return components;
}

CGFloat saturationOf(const UIView& bar)
{
    CGFloat hue = 0;
    CGFloat saturation = 0;
    CGFloat brightness = 0;
    CGFloat alpha = 0;
    bar.backgroundColor()->getHueSaturationBrightnessAlpha(hue, saturation, brightness, alpha);
    return saturation;
}

std::vector<CGFloat> saturationsOf(const UIView& curve)
{
    std::vector<CGFloat> saturations;
    for (const auto& bar : curve.subviews())
        saturations.push_back(saturationOf(*bar));
    return saturations;
}

const Components white { 1, 1, 1, 1 };
const Components black { 0, 0, 0, 1 };

class ARow : public ThePresetList { };

TEST_F(ARow, IsClearWithBoldBlackTextThatTurnsWhite)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cellNamed("Rock");
    EXPECT_EQ(cell->reuseIdentifier(), "PlaylistSaver");
    EXPECT_EQ(componentsOf(cell->backgroundColor())[3], 0);
    EXPECT_EQ(componentsOf(cell->contentView().backgroundColor())[3], 0);
    EXPECT_EQ(cell->detailTextLabel()->text(), "");
    const auto& label = cell->textLabel();
    EXPECT_EQ(label.text(), "Rock");
    EXPECT_EQ(label.font()->fontName(), "HelveticaNeue-Bold");
    EXPECT_EQ(label.font()->pointSize(), 18);
    EXPECT_EQ(componentsOf(label.textColor()), black);
    EXPECT_EQ(componentsOf(label.highlightedTextColor()), white);
    EXPECT_EQ(componentsOf(label.backgroundColor())[3], 0);
    EXPECT_EQ(label.textAlignment(), NSTextAlignment::Natural);
}

TEST_F(ARow, IsBlackWithADarkCurveWhilePressed)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cellNamed("Rock");
    EXPECT_EQ(componentsOf(cell->selectedBackgroundView()->backgroundColor()), black);
    EXPECT_EQ(cell->selectedBackgroundView()->alpha(), 1);
    ASSERT_NE(pressedBackdrop(*cell), nullptr);
    EXPECT_EQ(componentsOf(pressedBackdrop(*cell)->backgroundColor()), black);
    for (const auto& bar : pressedCurve(*cell).subviews())
        EXPECT_EQ(componentsOf(bar->backgroundColor()), (Components { 0.15, 0.15, 0.15, 1 }));
    EXPECT_EQ(gainsOf(pressedCurve(*cell)), gainsOf(backgroundCurve(*cell)));
}

TEST_F(ARow, ShowsItsPresetsCurve)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cellNamed("Mine");
    EXPECT_THAT(gainsOf(backgroundCurve(*cell)),
        ElementsAre(-4.5f, -3.5f, -2.5f, -1.5f, -0.5f, 0.5f, 1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_EQ(cell->backgroundView()->frame(), cell->bounds());
    EXPECT_THAT(saturationsOf(backgroundCurve(*cell)), Each(DoubleNear(0.1, 1e-6)));
}

TEST_F(ARow, OfTheSelectedPresetHasAStrongerCurve)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(selectedPresetKey, "Yours");
    store(preferences);
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Yours"))), Each(DoubleNear(0.3, 1e-6)));
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Mine"))), Each(DoubleNear(0.1, 1e-6)));
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cell({ 0, 0 }))), Each(DoubleNear(0.1, 1e-6)));
}

TEST_F(ARow, TellsAScreenReaderWhichPresetIsSelected)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(selectedPresetKey, "Yours");
    store(preferences);
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ(pane.cellNamed("Yours")->accessibilityTraits(), UIAccessibilityTraitSelected);
    EXPECT_EQ(pane.cellNamed("Mine")->accessibilityTraits(), UIAccessibilityTraitNone);
    EXPECT_EQ(pane.cell({ 0, 0 })->accessibilityTraits(), UIAccessibilityTraitNone);
}

TEST_F(ARow, IsNotSelectedForASimilarName)
{
    auto preferences = preferencesWithPresets(twoPresets());
    for (const auto& name : { PropertyList("yours"), PropertyList("Yours "), PropertyList(7) }) {
        preferences.set(selectedPresetKey, name);
        store(preferences);
        const PresetPane pane(platform);
        pane.showPresets();
        EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Yours"))), Each(DoubleNear(0.1, 1e-6)));
    }
}

TEST_F(ARow, IsReusedWithoutTracesOfThePreviousOne)
{
    const PresetPane pane(platform, { 320, 300 });
    pane.showPresets();
    platform.layOut();
    auto* const save = pane.list().cellForRowAtIndexPath({ 0, 0 });
    ASSERT_NE(save, nullptr);
    EXPECT_NE(save->imageView().image(), nullptr);
    save->setSelected(true, Animated::No);

    bool isReused = false;
    pane.list().setContentOffset({ 0, 400 });
    platform.layOut();
    for (std::size_t row = 0; row < builtinNames.size(); ++row) {
        const auto* cell = pane.list().cellForRowAtIndexPath({ 1, row });
        if (!cell)
            continue;
        isReused = isReused || cell == save;
        EXPECT_EQ(cell->imageView().image(), nullptr);
        EXPECT_EQ(cell->imageView().highlightedImage(), nullptr);
        EXPECT_EQ(cell->textLabel().text(), builtinNames[row]);
        EXPECT_FALSE(cell->isSelected());
        EXPECT_EQ(cell->backgroundView()->subviews().size(), 10u);
        EXPECT_EQ(cell->selectedBackgroundView()->subviews().size(), 1u);
    }
    EXPECT_TRUE(isReused);
}

TEST_F(ARow, IsNotSelectedWhenItsCellWasBefore)
{
    const PresetPane pane(platform, { 320, 300 });
    pane.showPresets();
    platform.layOut();
    const auto used = retain(pane.list().cellForRowAtIndexPath({ 0, 0 }));
    // Now all cells are available for reuse.
    pane.list().reloadData();
    used->setSelected(true, Animated::No);
    std::vector<RetainPtr<UITableViewCell>> cells;
    while (cells.size() < 20 && (cells.empty() || cells.back() != used))
        cells.push_back(pane.cell({ 1, 0 }));
    ASSERT_EQ(cells.back(), used);
    EXPECT_FALSE(used->isSelected());
}

TEST_F(ARow, HasACurveThatGrowsFromNothingInANewCell)
{
    const PresetPane pane(platform);
    pane.showPresets();
    RetainPtr<UITableViewCell> cell;
    UIView::animateWithDurationAnimations(1, [&] { cell = pane.cellNamed("Rock"); });
    EXPECT_EQ(cell->backgroundView()->frame(), cell->bounds());
    EXPECT_EQ(shownFrame(*cell->backgroundView()), CGRect());
}

TEST_F(ARow, KeepsItsCurvesWithinItself)
{
    storePresets(PropertyList::Dictionary { { "Loud", level(24) } });
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_TRUE(pane.cellNamed("Loud")->clipsToBounds());
    EXPECT_TRUE(pane.cell({ 0, 0 })->clipsToBounds());
}

TEST_F(ARow, ReadsGainsAsNumbersOfAnyKind)
{
    storePresets(PropertyList::Dictionary {
        { "Typed", PropertyList::Array { "6", "-6", true, false, 3, " 4.5 dB", "loud", -0.5, "1e1", 9 } } });
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cellNamed("Typed");
    EXPECT_THAT(gainsOf(backgroundCurve(*cell)), ElementsAre(6, -6, 1, 0, 3, 4.5f, 0, -0.5f, 10, 9));
    EXPECT_EQ(gainsOf(pressedCurve(*cell)), gainsOf(backgroundCurve(*cell)));
    EXPECT_THAT(pane.trace(), SizeIs(2)) << "the log lines of reading the list, and none about gains";
}

TEST_F(ARow, HasItsPressedLooksAsLargeAsItselfWhenItAppears)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cellNamed("Rock");
    cell->setFrame(CGRectMake(0, 100, 777, 55));
    pane.panel().tableViewWillDisplayCellForRowAtIndexPath(pane.list(), *cell, { 1, 12 });
    EXPECT_EQ(pressedBackdrop(*cell)->frame(), CGRectMake(0, 0, 777, 55));
    EXPECT_EQ(pressedCurve(*cell).frame(), CGRectMake(0, 0, 777, 55));
    EXPECT_EQ(pressedCurve(*cell).subviews()[0]->frame().size.width, 77.7);
}

TEST_F(ARow, ForSavingShowsThePlusAndTheSlidersCurve)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    for (std::size_t i = 0; i <= 10; ++i)
        pane.slider(i).setValue(static_cast<float>(i));
    pane.showPresets();
    const auto cell = pane.cell({ 0, 0 });
    EXPECT_EQ(cell->textLabel().text(), "Save");
    EXPECT_THAT(gainsOf(backgroundCurve(*cell)), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
    ASSERT_NE(cell->imageView().image(), nullptr);
    ASSERT_NE(cell->imageView().highlightedImage(), nullptr);
    EXPECT_EQ(cell->imageView().image()->size(), cell->imageView().highlightedImage()->size());
    EXPECT_EQ(pane.cell({ 0, 0 })->imageView().image(), cell->imageView().image()) << "loaded once";
}

TEST_F(ARow, ForSavingShowsAWhitePlusOfTheSameShapeWhilePressed)
{
    const PresetPane pane(platform);
    pane.showPresets();
    const auto cell = pane.cell({ 0, 0 });
    const auto& plus = *cell->imageView().image();
    const auto& pressed = *cell->imageView().highlightedImage();
    // The artwork has two pixels per point, the image for pressed rows has one.
    const auto scale = widthOf(plus) / widthOf(pressed);
    const auto alphas = [](const UIImage& image, std::size_t x, std::size_t y, std::size_t size) {
        int sum = 0;
        for (std::size_t i = 0; i < size * size; ++i)
            sum += pixelOf(image, x * size + i % size, y * size + i / size)[3];
        return sum / static_cast<int>(size * size);
    };
    int opaque = 0;
    int clear = 0;
    for (std::size_t y = 0; y < heightOf(pressed); ++y) {
        for (std::size_t x = 0; x < widthOf(pressed); ++x) {
            const auto pixel = pixelOf(pressed, x, y);
            EXPECT_THAT(pixel, Each(pixel[3])) << "white, at " << x << " " << y;
            // Filled and then masked with the drawn shape: the shape's alpha, applied once.
            EXPECT_NEAR(pixel[3], alphas(plus, x, y, scale), 40) << x << " " << y;
            opaque += pixel[3] == 255;
            clear += pixel[3] == 0;
        }
    }
    EXPECT_GT(opaque, 0);
    EXPECT_GT(clear, 0);
}

TEST_F(ARow, WithTooFewGainsShowsNoneForTheRestAndIsLoggedEachTime)
{
    const std::string complaint
        = "log Brimsound: preset \"Short\" is not ten gains: 0 dB where one is missing";
    storePresets(PropertyList::Dictionary {
        { "Short", PropertyList::Array { 3, 6.5f, "9", true } }, { "Mine", rising() } });
    const auto file = platform.preferencesFile();
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ(pane.trace().back(), complaint);
    for (int i = 0; i < 2; ++i) {
        const auto cell = pane.cellNamed("Short");
        EXPECT_THAT(gainsOf(backgroundCurve(*cell)), ElementsAre(3, 6.5f, 9, 1, 0, 0, 0, 0, 0, 0));
    }
    EXPECT_THAT(pane.trace(), IsEmpty()) << "not logged for each row";
    EXPECT_EQ(platform.preferencesFile(), file);
    pane.showPresets();
    EXPECT_THAT(pane.trace(), Contains(complaint).Times(1));
}

TEST_F(ARow, WithoutAnArrayShowsTenZeroGains)
{
    storePresets(PropertyList::Dictionary { { "Odd", "nonsense" }, { "Mine", rising() } });
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys({ "Odd", "Mine" }));
    EXPECT_THAT(gainsOf(backgroundCurve(*pane.cellNamed("Odd"))), Each(0));
}

TEST_F(ARow, WithMoreThanTenGainsShowsTheFirstTen)
{
    auto eleven = rising();
    eleven.emplace_back("no number");
    storePresets(PropertyList::Dictionary { { "Long", eleven } });
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    EXPECT_EQ(gainsOf(backgroundCurve(*pane.cellNamed("Long"))).back(), 4.5f);
    EXPECT_THAT(pane.trace(), IsEmpty());
}

// Choosing.

class ChoosingAPreset : public ThePresetList {
protected:
    /// The delegate's effects for ten bands, each edited in its own gesture.
    static std::vector<std::string> tenEdits()
    {
        std::vector<std::string> edits;
        for (int i = 0; i < 10; ++i)
            edits.insert(edits.end(), { equalizerSend, writesFile, postsFinished });
        return edits;
    }
};

TEST_F(ChoosingAPreset, EditsTheBandsAndOnlyThenRecordsTheChoice)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.choose("Mine");

    auto expected = tenEdits();
    expected.insert(expected.end(), { writesFile, postsFinished });
    EXPECT_EQ(pane.trace(), expected);
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Mine"));
    EXPECT_THAT(floatsIn(storedPreferences(), peakingEqValuesKey),
        ElementsAre(-4.5f, -3.5f, -2.5f, -1.5f, -0.5f, 0.5f, 1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_THAT(storedNames(), areKeys({ "Mine", "Yours" }));
}

TEST_F(ChoosingAPreset, HasThePaneReloadOnceForTheElevenPosts)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.choose("Mine");
    pane.trace();
    platform.deliverNotifications();
    std::vector<std::string> expected(11, deliversFinished);
    expected.push_back(logsReload);
    EXPECT_EQ(pane.trace(), expected);
    EXPECT_EQ(_notificationsToSkip, 0u);
}

TEST_F(ChoosingAPreset, LeavesThePreampAloneUnlessItIsAutomatic)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.slider(0).setValue(2);
    pane.showPresets();
    pane.choose("Yours");
    for (const auto& message : platform.messages())
        EXPECT_EQ(floatsIn(message, valsKey)[0], 2);
    EXPECT_EQ(storedValue(preampKey), PropertyList(2.0f));
}

TEST_F(ChoosingAPreset, RecomputesAnAutomaticPreampBandByBand)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(autoPreampKey, true);
    store(preferences);
    const PresetPane pane(platform);
    pane.showPresets();
    pane.choose("Mine");
    std::vector<float> preamps;
    for (const auto& message : platform.messages())
        preamps.push_back(floatsIn(message, valsKey)[0]);
    EXPECT_THAT(preamps, ElementsAre(0, 0, 0, 0, 0, -0.5f, -1.5f, -2.5f, -3.5f, -4.5f));
}

TEST_F(ChoosingAPreset, ClosesThePanelAndDeselectsTheRow)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    auto* cell = pane.list().cellForRowAtIndexPath({ 1, 0 });
    ASSERT_NE(cell, nullptr);
    cell->setSelected(true, Animated::No);
    pane.choose("Flat");
    EXPECT_FALSE(cell->isSelected());
    EXPECT_EQ(pane.root().alpha(), 0);
    EXPECT_FALSE(pane.root().isUserInteractionEnabled());
}

TEST_F(ChoosingAPreset, ShowsItAsSelectedNextTime)
{
    const PresetPane pane(platform);
    pane.showPresets();
    pane.choose("Rock");
    pane.showPresets();
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Rock"))), Each(DoubleNear(0.3, 1e-6)));
}

TEST_F(ChoosingAPreset, PassesZeroForAMissingGain)
{
    storePresets(
        PropertyList::Dictionary { { "Short", PropertyList::Array { 3, 6.5f, "9" } }, { "Odd", 1 } });
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.choose("Short");
    EXPECT_THAT(
        floatsIn(storedPreferences(), peakingEqValuesKey), ElementsAre(3, 6.5f, 9, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(storedGains("Short"), ElementsAre(3, 6.5f, 9)) << "the file is unchanged";

    pane.showPresets();
    pane.choose("Odd");
    EXPECT_THAT(floatsIn(storedPreferences(), peakingEqValuesKey), Each(0));
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Odd"));
}

TEST_F(ChoosingAPreset, PlaysGainsThatAreNumbersOfAnyKind)
{
    storePresets(PropertyList::Dictionary {
        { "Typed", PropertyList::Array { "6", "-6", true, false, 3, "4.5", "loud", -0.5, 0, 9 } } });
    const PresetPane pane(platform);
    pane.showPresets();
    pane.choose("Typed");
    EXPECT_THAT(
        floatsIn(storedPreferences(), peakingEqValuesKey), ElementsAre(6, -6, 1, 0, 3, 4.5f, 0, -0.5f, 0, 9));
}

TEST_F(ChoosingAPreset, WithMoreThanTenGainsPlaysTheFirstTen)
{
    auto eleven = rising();
    eleven.emplace_back(11);
    storePresets(PropertyList::Dictionary { { "Long", eleven } });
    const PresetPane pane(platform);
    pane.showPresets();
    pane.choose("Long");
    EXPECT_THAT(platform.messages(), SizeIs(10));
    EXPECT_EQ(floatsIn(platform.messages().back(), valsKey).back(), 4.5f);
    EXPECT_THAT(storedGains("Long"), SizeIs(11));
}

/// Implements the panel's method, or does not.
class Delegate : public NSObject {
public:
    explicit Delegate(bool answers)
        : _answers(answers)
    {
    }

    std::span<const Method> methods() const override
    {
        static const std::array table { method<&Delegate::presetSelected>("playlistSaver:selectedPreset:") };
        return _answers ? std::span<const Method>(table) : std::span<const Method>();
    }

    void presetSelected(PlaylistSaver& panel, const PropertyList& gains)
    {
        saver = &panel;
        handedOver = gains;
        selectedThen = storedValue(selectedPresetKey);
        alphaThen = panel.view().alpha();
        tookTouchesThen = panel.view().isUserInteractionEnabled();
    }

    PlaylistSaver* saver = nullptr;
    PropertyList handedOver;
    PropertyList selectedThen;
    CGFloat alphaThen = -1;
    bool tookTouchesThen = true;

private:
    bool _answers;
};

TEST_F(ChoosingAPreset, PassesTheGainsToTheDelegateBeforeTheChoiceIsRecorded)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(selectedPresetKey, "Yours");
    store(preferences);
    const auto delegate = make<Delegate>(true);
    const auto panel = make<PlaylistSaver>(*delegate);
    panel->showEverything();
    panel->tableViewDidSelectRowAtIndexPath(*panel->tableView(), { 1, rowOf("Mine", *panel) });
    EXPECT_EQ(delegate->saver, panel.get());
    EXPECT_EQ(delegate->handedOver, PropertyList(rising()));
    EXPECT_EQ(delegate->selectedThen, PropertyList("Yours"));
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Mine"));
}

TEST_F(ChoosingAPreset, ClosesThePanelBeforeTheDelegateIsTold)
{
    storePresets(twoPresets());
    const auto delegate = make<Delegate>(true);
    const auto panel = make<PlaylistSaver>(*delegate);
    panel->showEverything();
    ASSERT_EQ(panel->view().alpha(), 1);
    panel->tableViewDidSelectRowAtIndexPath(*panel->tableView(), { 1, rowOf("Mine", *panel) });
    EXPECT_EQ(delegate->alphaThen, 0);
    EXPECT_FALSE(delegate->tookTouchesThen);
}

/// Shows the list again when it is told of a choice.
class Reloader : public NSObject {
public:
    std::span<const Method> methods() const override
    {
        static const std::array table { method<&Reloader::presetSelected>("playlistSaver:selectedPreset:") };
        return table;
    }

    void presetSelected(PlaylistSaver& panel, const PropertyList&) { panel.showEverything(); }
};

TEST_F(ChoosingAPreset, IsRecordedWhateverTheDelegateDoesToTheList)
{
    storePresets(twoPresets());
    const auto delegate = make<Reloader>();
    const auto panel = make<PlaylistSaver>(*delegate);
    panel->showEverything();
    panel->tableViewDidSelectRowAtIndexPath(*panel->tableView(), { 1, rowOf("Mine", *panel) });
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Mine"));
}

TEST_F(ChoosingAPreset, ThatDoesNotExistClosesThePanelAndRecordsNothing)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.choose("no such");
    EXPECT_THAT(pane.trace(), IsEmpty());
    EXPECT_EQ(pane.root().alpha(), 0);
}

TEST_F(ChoosingAPreset, IsRecordedForADelegateWithoutTheMethod)
{
    storePresets(twoPresets());
    const auto delegate = make<Delegate>(false);
    const auto panel = make<PlaylistSaver>(*delegate);
    panel->showEverything();
    platform.takeTrace();
    panel->tableViewDidSelectRowAtIndexPath(*panel->tableView(), { 1, rowOf("Yours", *panel) });
    EXPECT_THAT(platform.takeTrace(), ElementsAre(writesFile, postsFinished));
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Yours"));
}

TEST_F(ChoosingAPreset, KeepsChangesByOthersSinceTheListWasShown)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    auto preferences = preferencesWithPresets(PropertyList::Dictionary { { "Theirs", level(1) } });
    preferences.set(enabledKey, false);
    store(preferences);
    pane.choose("Mine");
    EXPECT_THAT(storedNames(), ElementsAre("Theirs"));
    EXPECT_EQ(storedValue(enabledKey), PropertyList(false));
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Mine"));
}

// Saving.

class SavingAPreset : public ThePresetList { };

TEST_F(SavingAPreset, WritesTheSlidersUnderItsNameAndTellsEveryone)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    for (std::size_t i = 0; i <= 10; ++i)
        pane.slider(i).setValue(static_cast<float>(i) + 0.5f);
    pane.showPresets();
    pane.trace();
    pane.save("New");
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    EXPECT_THAT(storedNames(), areKeys({ "Mine", "Yours", "New" }));
    EXPECT_THAT(storedGains("New"), ElementsAre(1.5f, 2.5f, 3.5f, 4.5f, 5.5f, 6.5f, 7.5f, 8.5f, 9.5f, 10.5f));
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("New"));
    EXPECT_THAT(pane.names(), areKeys({ "Mine", "Yours", "New" }));
    EXPECT_THAT(platform.messages(), IsEmpty()) << "the delegate is not told";
    EXPECT_EQ(pane.root().alpha(), 0) << "and the panel closes";
}

TEST_F(SavingAPreset, MakesItTheSelectedOneAtOnce)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(selectedPresetKey, "Yours");
    store(preferences);
    const PresetPane pane(platform);
    pane.showPresets();
    ASSERT_EQ(pane.panel().selectedPreset(), "Yours");
    pane.save("New");
    EXPECT_EQ(pane.panel().selectedPreset(), "New");
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("New"))), Each(DoubleNear(0.3, 1e-6)));
}

TEST_F(SavingAPreset, StoresRealNumbers)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.slider(1).setValue(3);
    pane.showPresets();
    pane.save("New");
    const auto presets = storedValue(presetsKey);
    for (const auto& gain : *arrayForKey(*presets.asDictionary(), "New"))
        EXPECT_TRUE(gain.asReal());
}

TEST_F(SavingAPreset, HasThePaneReload)
{
    const PresetPane pane(platform);
    pane.showPresets();
    pane.save("New");
    pane.trace();
    platform.deliverNotifications();
    EXPECT_THAT(pane.trace(), ElementsAre(deliversFinished, logsReload));
}

TEST_F(SavingAPreset, AddsItToTheBuiltInOnesWhereTheFileHasNone)
{
    store({ { preampKey, 1 } });
    const PresetPane pane(platform);
    pane.showPresets();
    pane.save("New");
    auto expected = builtinNames;
    expected.emplace_back("New");
    EXPECT_THAT(storedNames(), areKeys(expected));
}

TEST_F(SavingAPreset, AddsItToTheBuiltInOnesWhenTheFilesPresetsAreInvalid)
{
    auto expected = builtinNames;
    expected.emplace_back("New");
    for (const auto& presets : { PropertyList(PropertyList::Dictionary()), PropertyList("nonsense") }) {
        storePresets(presets);
        const PresetPane pane(platform);
        pane.showPresets();
        pane.save("New");
        EXPECT_THAT(storedNames(), areKeys(expected));
    }
}

TEST_F(SavingAPreset, ShowsItAsSelectedNextTime)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.save("New");
    pane.showPresets();
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("New"))), Each(DoubleNear(0.3, 1e-6)));
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Mine"))), Each(DoubleNear(0.1, 1e-6)));
}

TEST_F(SavingAPreset, UnderANameThatIsThereReplacesItInItsPlace)
{
    const PresetPane pane(platform);
    pane.slider(1).setValue(7);
    pane.showPresets();
    pane.save("Rock");
    EXPECT_THAT(storedNames(), areKeys(builtinNames));
    EXPECT_THAT(storedGains("Rock"), ElementsAre(7, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(SavingAPreset, AcceptsAnyNameAsItWasTyped)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    const std::vector<std::string> names { "   ", " padded ", "\xF0\x9F\x8E\xB8\xF0\x9F\x94\x8A",
        "line\nbreak", std::string(10000, 'x'), "mine" };
    for (const auto& name : names) {
        pane.showPresets();
        pane.save(name);
        EXPECT_EQ(storedValue(selectedPresetKey), PropertyList(name));
    }
    std::vector<std::string> expected { "Mine", "Yours" };
    expected.insert(expected.end(), names.begin(), names.end());
    EXPECT_THAT(storedNames(), areKeys(expected));
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys(expected));
}

TEST_F(SavingAPreset, WithoutANameSavesNothingAndCloses)
{
    storePresets(twoPresets());
    const auto file = platform.preferencesFile();
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.save("");
    EXPECT_THAT(pane.trace(), IsEmpty());
    EXPECT_EQ(platform.preferencesFile(), file);
    EXPECT_EQ(pane.root().alpha(), 0);

    pane.showPresets();
    EXPECT_FALSE(pane.panel().textFieldShouldReturn(nullptr));
    EXPECT_EQ(platform.preferencesFile(), file);
    EXPECT_EQ(pane.root().alpha(), 0);
}

TEST_F(SavingAPreset, KeepsChangesByOthersSinceTheListWasShown)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    storePresets(PropertyList::Dictionary { { "Theirs", level(1) } });
    pane.save("New");
    EXPECT_THAT(storedNames(), areKeys({ "Theirs", "New" }));
    EXPECT_THAT(pane.names(), areKeys({ "Theirs", "New" }));
}

TEST_F(SavingAPreset, IsAnnouncedEvenIfTheFileCannotBeWritten)
{
    const PresetPane pane(platform);
    pane.showPresets();
    platform.makePreferencesFileUnwritable();
    pane.trace();
    pane.save("New");
    EXPECT_THAT(pane.trace(), ElementsAre(postsFinished));
}

// Deleting.

class DeletingAPreset : public ThePresetList { };

TEST_F(DeletingAPreset, RemovesItFromTheFileAndTheList)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    pane.trace();
    pane.remove("Mine");
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    EXPECT_THAT(storedNames(), ElementsAre("Yours"));
    EXPECT_THAT(pane.names(), ElementsAre("Yours"));
    EXPECT_EQ(pane.root().alpha(), 1) << "the panel stays";
    platform.passTime(1);
    platform.layOut();
    EXPECT_EQ(pane.list().cellForRowAtIndexPath({ 1, 0 })->textLabel().text(), "Yours");
    EXPECT_EQ(pane.list().cellForRowAtIndexPath({ 1, 1 }), nullptr);
}

TEST_F(DeletingAPreset, MovesTheRowsBelowUp)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    const auto last = retain(pane.list().cellForRowAtIndexPath({ 1, 1 }));
    const auto before = last->frame();
    pane.remove(pane.names()[0]);
    platform.layOut();
    EXPECT_EQ(pane.list().cellForRowAtIndexPath({ 1, 0 }), last.get());
    EXPECT_EQ(last->frame().origin.y, before.origin.y - 44);
    EXPECT_EQ(shownFrame(*last), before) << "on its way";
    platform.passTime(1);
    EXPECT_EQ(shownFrame(*last), last->frame());
}

TEST_F(DeletingAPreset, ShowsOtherRowsAtOnceWhereTheFileChangedSince)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    platform.layOut();
    storePresets(PropertyList::Dictionary { { "Theirs", level(2) }, { "Mine", level(3) } });
    pane.remove("Mine");
    platform.layOut();
    const auto* row = pane.list().cellForRowAtIndexPath({ 1, 0 });
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->textLabel().text(), "Theirs");
    EXPECT_EQ(shownFrame(*row), row->frame());
}

TEST_F(DeletingAPreset, WritesTheOtherBuiltInOnesWhereTheFileHasNone)
{
    const PresetPane pane(platform);
    pane.showPresets();
    pane.remove("Flat");
    EXPECT_THAT(storedNames(), areKeys({ builtinNames.begin() + 1, builtinNames.end() }));
}

TEST_F(DeletingAPreset, LeavesTheSelectedNameAlone)
{
    auto preferences = preferencesWithPresets(twoPresets());
    preferences.set(selectedPresetKey, "Mine");
    store(preferences);
    const PresetPane pane(platform);
    pane.showPresets();
    pane.remove("Mine");
    EXPECT_EQ(storedValue(selectedPresetKey), PropertyList("Mine"));
    pane.showPresets();
    EXPECT_THAT(saturationsOf(backgroundCurve(*pane.cellNamed("Yours"))), Each(DoubleNear(0.1, 1e-6)));
}

TEST_F(DeletingAPreset, OneByOneLeavesNoneUntilTheBuiltInOnesAreShownNextTime)
{
    const PresetPane pane(platform);
    pane.showPresets();
    for (const auto& name : builtinNames)
        pane.remove(name);
    EXPECT_THAT(pane.names(), IsEmpty());
    EXPECT_EQ(storedValue(presetsKey), PropertyList(PropertyList::Dictionary()));
    pane.showPresets();
    EXPECT_THAT(pane.names(), areKeys(builtinNames));
    EXPECT_EQ(storedValue(presetsKey), PropertyList(PropertyList::Dictionary()));
}

TEST_F(DeletingAPreset, DeletesByNameEvenIfTheFileChangedSince)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    storePresets(
        PropertyList::Dictionary { { "Yours", level(1) }, { "Theirs", level(2) }, { "Mine", level(3) } });
    platform.layOut();
    pane.remove("Mine");
    EXPECT_THAT(storedNames(), areKeys({ "Yours", "Theirs" }));
    EXPECT_THAT(pane.names(), areKeys({ "Yours", "Theirs" }));
    platform.passTime(1);
    platform.layOut();
    for (std::size_t row = 0; row < 2; ++row)
        EXPECT_EQ(pane.list().cellForRowAtIndexPath({ 1, row })->textLabel().text(), pane.names()[row]);
}

TEST_F(DeletingAPreset, ThatIsMissingFromTheFileStillWritesAndAnnounces)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    storePresets(PropertyList::Dictionary { { "Theirs", level(2) } });
    pane.trace();
    pane.remove("Mine");
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    EXPECT_THAT(storedNames(), ElementsAre("Theirs"));
}

TEST_F(DeletingAPreset, ThatIsNotInTheListDoesNothing)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.remove("no such");
    EXPECT_THAT(pane.trace(), IsEmpty());
    EXPECT_THAT(pane.names(), areKeys({ "Mine", "Yours" }));
}

TEST_F(DeletingAPreset, IsTheOnlySupportedEdit)
{
    storePresets(twoPresets());
    const PresetPane pane(platform);
    pane.showPresets();
    pane.trace();
    pane.panel().tableViewCommitEditingStyleForRowAtIndexPath(
        pane.list(), UITableViewCellEditingStyle::None, { 1, 0 });
    EXPECT_THAT(pane.trace(), IsEmpty());
    EXPECT_THAT(pane.names(), areKeys({ "Mine", "Yours" }));
}

} // namespace

} // namespace brimsound::tests
