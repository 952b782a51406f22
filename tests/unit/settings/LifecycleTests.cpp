#include "settings/tweak.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <limits>
#include <utility>

namespace brimsound::tests {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class Lifecycle : public testing::Test {
protected:
    Lifecycle()
    {
        FREQUENCY_STRS[0].reset();
        _notificationsToSkip = 0;
    }

    /// Changes the settings and notifies the pane, as another process would.
    void changeElsewhere(const PropertyList::Dictionary& preferences)
    {
        platform.writePreferencesFile(PropertyList(preferences));
        platform.postFromAnotherProcess(settingsFinishedNotification);
        platform.deliverNotifications();
    }

    TestPlatform platform;
};

using OpeningThePane = Lifecycle;
using ClosingThePane = Lifecycle;
using ANotification = Lifecycle;

TEST_F(OpeningThePane, FillsTheCaptions)
{
    EXPECT_FALSE(FREQUENCY_STRS[0]);
    const auto controller = openController();
    const std::vector<std::string> captions { "Pre", "60", "170", "310", "600", "1K", "3K", "6K", "12K",
        "14K", "16K" };
    for (std::size_t i = 0; i < captions.size(); ++i)
        EXPECT_EQ(FREQUENCY_STRS[i], captions[i]);
}

TEST_F(OpeningThePane, LocalizesTheCaptionOnceInAProcess)
{
    FREQUENCY_STRS[0] = "Vor";
    openController();
    EXPECT_EQ(FREQUENCY_STRS[0], "Vor");
}

TEST_F(OpeningThePane, MakesItTheActiveControllerWithAnOpenCenter)
{
    const auto controller = openController();
    EXPECT_EQ(_activeController, controller.get());
    EXPECT_TRUE(controller->center());
}

TEST_F(OpeningThePane, ReturnsTheController)
{
    const auto controller = make<BrimsoundSettingsListController>();
    EXPECT_EQ(controller->initForContentSize({ 320, 568 }), controller.get());
}

TEST_F(OpeningThePane, ReturnsNullAndDoesNothingMoreThanTheCaptionWhenTheListControllerFails)
{
    _autoPreamp = false;
    const auto controller = make<BrimsoundSettingsListController>();
    EXPECT_EQ(controller->initForContentSize({ std::numeric_limits<double>::quiet_NaN(), 568 }), nullptr);
    EXPECT_EQ(FREQUENCY_STRS[0], "Pre");
    EXPECT_FALSE(controller->center());
    EXPECT_FALSE(_autoPreamp);
    EXPECT_EQ(_activeController, nullptr);
}

TEST_F(OpeningThePane, RegistersNoObserverWhenTheListControllerFails)
{
    const bool added = std::exchange(_addedObserver, false);
    const auto controller = make<BrimsoundSettingsListController>();
    EXPECT_EQ(controller->initForContentSize({ std::numeric_limits<double>::quiet_NaN(), 568 }), nullptr);
    EXPECT_FALSE(_addedObserver);
    _addedObserver = added;
}

TEST_F(OpeningThePane, TakesAutoPreampFromTheFileAndElseAsOn)
{
    openController();
    EXPECT_TRUE(_autoPreamp);
    platform.writePreferencesFile(PropertyList::Dictionary { { "AUTO_PREAMP", false } });
    openController();
    EXPECT_FALSE(_autoPreamp);
    platform.writePreferencesFile(PropertyList::Dictionary { { "AUTO_PREAMP", 1 } });
    openController();
    EXPECT_TRUE(_autoPreamp);
}

TEST_F(OpeningThePane, RegistersOneObserverHoweverOftenItIsOpened)
{
    const auto first = openController();
    EXPECT_TRUE(_addedObserver);
    const auto second = openController();
    platform.takeTrace();
    platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_THAT(platform.takeTrace(), ElementsAre(deliversFinished, logsReload));
}

TEST_F(OpeningThePane, WritesNothing)
{
    const Pane pane(platform);
    pane.controller().suspend();
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(OpeningThePane, LoadsTheSpecifiersOnce)
{
    const auto controller = openController();
    const auto& specifiers = controller->specifiers();
    EXPECT_FALSE(specifiers.empty());
    const auto first = specifiers.front();
    EXPECT_EQ(controller->specifiers().front(), first);
}

TEST_F(ClosingThePane, ReleasesEverything)
{
    auto controller = openController();
    const auto cell = controller->tableViewCellForRowAtIndexPath(controller->table(), { 2, 0 });
    const auto slider = controller->sliders()->front();
    const auto label = controller->labels()->front();
    const auto bar = retain(controller->blackBar());
    const auto center = retain(controller->center());
    const auto counts = [&] {
        return std::vector<std::size_t> { slider->retainCount(), label->retainCount(), bar->retainCount(),
            center->retainCount() };
    };
    // The content view and this test hold one reference each; the cell still holds the lists.
    controller = nullptr;
    platform.endTurn();
    EXPECT_THAT(counts(), ElementsAre(3, 3, 2, 1));
}

/// Runs a function when it is destroyed, to detect the destruction of its superview.
class Witness : public UIView {
public:
    explicit Witness(std::function<void()> onGone)
        : _onGone(std::move(onGone))
    {
    }

protected:
    ~Witness() override { _onGone(); }

private:
    std::function<void()> _onGone;
};

TEST_F(ClosingThePane, ReleasesItsMembersInOrder)
{
    std::vector<std::string> gone;
    RetainPtr<CPDistributedMessagingCenter> center;
    auto controller = openController();
    {
        // The test owns the slider row, and the panel is in the table, which is in no window.
        const auto cell = controller->tableViewCellForRowAtIndexPath(controller->table(), sliderRow);
        controller->showPresets();
        auto& panel = *controller->saver();
        panel.setDelegate(nullptr);
        // Otherwise its list would keep the sliders of the bands.
        panel.setSliders({});
        center = retain(controller->center());
        const auto watch = [&](UIView& view, const std::string& name) {
            view.addSubview(*make<Witness>([&gone, &center, name] {
                gone.push_back(name + (center->retainCount() > 1 ? "" : " after the center"));
            }));
        };
        watch(*controller->sliders()->front(), "sliders");
        watch(*controller->labels()->front(), "labels");
        watch(*controller->blackBar(), "black bar");
        watch(*panel.mainView(), "saver");
    }
    platform.endTurn();
    ASSERT_THAT(gone, IsEmpty());
    controller = nullptr;
    EXPECT_THAT(gone, ElementsAre("sliders", "labels", "black bar", "saver"));
    platform.endTurn();
    EXPECT_EQ(center->retainCount(), 1u);
}

TEST_F(Lifecycle, TheSettingsAreReleasedWhenTheyAreSetToNil)
{
    const auto controller = openController();
    controller->setSettings(PropertyList::Dictionary { { "KEY", 1 } });
    const Argument nil;
    controller->methodForSelector("setSettings:")->invoke(*controller, { &nil, 1 });
    EXPECT_TRUE(controller->settings().isNull());
}

TEST_F(ClosingThePane, LeavesNoControllerActive)
{
    auto controller = openController();
    controller = nullptr;
    EXPECT_EQ(_activeController, nullptr);
}

TEST_F(ClosingThePane, LeavesANewerControllerActive)
{
    auto first = openController();
    const auto second = openController();
    first = nullptr;
    EXPECT_EQ(_activeController, second.get());
}

TEST_F(ClosingThePane, KeepsTheCounterAndTheObserver)
{
    openController();
    _notificationsToSkip = 2;
    EXPECT_TRUE(_addedObserver);
    openController();
    EXPECT_EQ(_notificationsToSkip, 2u);
}

TEST_F(ANotification, WithoutAPaneOnlyLowersTheCounter)
{
    openController();
    platform.takeTrace();
    _notificationsToSkip = 1;
    for (int i = 0; i < 2; ++i)
        platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_EQ(_notificationsToSkip, 0u);
    EXPECT_THAT(platform.takeTrace(), ElementsAre(deliversFinished, deliversFinished));
}

TEST_F(ANotification, IsIgnoredAsOftenAsTheCounterSays)
{
    const Pane pane(platform);
    _notificationsToSkip = 3;
    platform.writePreferencesFile(PropertyList::Dictionary { { "PREAMP", 6.0f } });
    for (int i = 0; i < 4; ++i)
        platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_THAT(pane.trace(),
        ElementsAre(deliversFinished, deliversFinished, deliversFinished, deliversFinished, logsReload));
    EXPECT_EQ(pane.slider(0).value(), 6);
    EXPECT_EQ(_notificationsToSkip, 0u);
}

TEST_F(ANotification, ReloadsTheSlidersAndSendsNothing)
{
    const Pane pane(platform);
    auto preferences = preferencesWith({ 1, 2, 3, 4, 5, -1, -2, -3, -4, -5 });
    preferences.set("PREAMP", -2.5f);
    changeElsewhere(preferences);
    EXPECT_THAT(pane.values(), ElementsAre(-2.5f, 1, 2, 3, 4, 5, -1, -2, -3, -4, -5));
    EXPECT_THAT(pane.trace(), ElementsAre(deliversFinished, logsReload));
}

TEST_F(ANotification, RecolorsTheBandsAndMovesTheBar)
{
    const Pane pane(platform);
    const auto before = pane.controller().blackBar()->frame().origin.x;
    changeElsewhere({ { "PREAMP", 12.0f } });
    EXPECT_THAT(pane.color(3), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(pane.color(0), ElementsAre(0, 0, 0, 1));
    EXPECT_LT(pane.controller().blackBar()->frame().origin.x, before);
}

TEST_F(ANotification, ChangesNoCaption)
{
    const Pane pane(platform);
    pane.touch(3);
    changeElsewhere(preferencesWith(std::vector<float>(10, 5)));
    EXPECT_EQ(pane.label(3).text(), "0.0");
    EXPECT_EQ(pane.label(4).text(), "600");
}

TEST_F(ANotification, OfFewerGainsLeavesTheOtherSlidersAsTheyWere)
{
    platform.writePreferencesFile(PropertyList(preferencesWith(std::vector<float>(10, 7))));
    const Pane pane(platform);
    changeElsewhere(preferencesWith({ 1, 2, 3 }));
    EXPECT_THAT(pane.values(), ElementsAre(0, 1, 2, 3, 7, 7, 7, 7, 7, 7, 7));
}

TEST_F(ANotification, OfMoreGainsTakesTheFirstTen)
{
    const Pane pane(platform);
    changeElsewhere(preferencesWith({ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 }));
    EXPECT_THAT(pane.values(), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10));
}

TEST_F(ANotification, OfNoGainsStillSetsThePreamp)
{
    platform.writePreferencesFile(PropertyList(preferencesWith(std::vector<float>(10, 7))));
    const Pane pane(platform);
    changeElsewhere({ { "PEAKING_EQ_VALUES", PropertyList::Array() }, { "PREAMP", 3.0f } });
    EXPECT_THAT(pane.values(), ElementsAre(3, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7));
    changeElsewhere({ { "PREAMP", 4.0f } });
    EXPECT_THAT(pane.values(), ElementsAre(4, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7));
}

TEST_F(ANotification, WithoutAPreampSetsItToZero)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "PREAMP", 5.0f } });
    const Pane pane(platform);
    ASSERT_EQ(pane.slider(0).value(), 5);
    changeElsewhere(preferencesWith({ 1 }));
    EXPECT_EQ(pane.slider(0).value(), 0);
}

TEST_F(ANotification, OfAnUnreadableFileShowsFreshPreferences)
{
    platform.writePreferencesFile(PropertyList(preferencesWith(std::vector<float>(10, 7))));
    const Pane pane(platform);
    platform.writePreferencesFile(std::string("gone"));
    platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_THAT(pane.values(), Each(0));
}

TEST_F(ANotification, BeforeTheSlidersExistOnlyLogs)
{
    const auto controller = openController();
    platform.takeTrace();
    platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_THAT(platform.takeTrace(), ElementsAre(deliversFinished, logsReload));
}

TEST_F(ANotification, ReachesTheControllerOpenedLast)
{
    const Pane first(platform);
    const Pane second(platform);
    changeElsewhere(preferencesWith(std::vector<float>(10, 7)));
    EXPECT_EQ(first.slider(1).value(), 0);
    EXPECT_EQ(second.slider(1).value(), 7);
}

TEST_F(ANotification, OfAnotherNameIsIgnored)
{
    const Pane pane(platform);
    platform.postFromAnotherProcess("com.quorvix.brimsound.somethingelse");
    platform.deliverNotifications();
    EXPECT_THAT(pane.trace(), IsEmpty());
}

class TheDefaultBridge : public Lifecycle {
protected:
    RetainPtr<PSSpecifier> specifier(PropertyList::Dictionary properties)
    {
        return make<PSSpecifier>("Row", *controller, std::move(properties));
    }

    RetainPtr<BrimsoundSettingsListController> controller = openController();
};

TEST_F(TheDefaultBridge, ShowsTheDefaultEvenWhenTheFileHoldsAValue)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "ENABLED", false } });
    const auto row = specifier({ { "key", "ENABLED" }, { "default", true } });
    EXPECT_EQ(controller->readPreferenceValue(*row), PropertyList(true));
}

TEST_F(TheDefaultBridge, ShowsNullWithoutADefault)
{
    EXPECT_TRUE(controller->readPreferenceValue(*specifier({ { "key", "ENABLED" } })).isNull());
}

TEST_F(TheDefaultBridge, DoesNotSaveChangesAndNotifiesNobody)
{
    const auto row = specifier({ { "key", "ENABLED" }, { "default", true } });
    platform.takeTrace();
    controller->setPreferenceValueSpecifier(false, *row);
    EXPECT_EQ(controller->readPreferenceValue(*row), PropertyList(true));
    EXPECT_TRUE(controller->settings().isNull());
    EXPECT_EQ(platform.preferencesFile(), "");
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

TEST_F(TheDefaultBridge, UsesSettingsThatAreNotEmpty)
{
    const auto row = specifier({ { "key", "ENABLED" }, { "default", true } });
    const auto negated = specifier({ { "key", "ENABLED" }, { "default", true }, { "negate", true } });
    controller->setSettings(PropertyList::Dictionary { { "ENABLED", "no" } });
    EXPECT_EQ(controller->readPreferenceValue(*row), PropertyList("no"));
    EXPECT_EQ(controller->readPreferenceValue(*negated), PropertyList(true));

    controller->setPreferenceValueSpecifier(true, *negated);
    EXPECT_EQ(controller->settings(), PropertyList(PropertyList::Dictionary { { "ENABLED", false } }));
    controller->setPreferenceValueSpecifier(7, *row);
    EXPECT_EQ(controller->settings(), PropertyList(PropertyList::Dictionary { { "ENABLED", 7 } }));
}

TEST_F(TheDefaultBridge, RemovesTheKeyOfAValueThatIsNull)
{
    const auto row = specifier({ { "key", "ENABLED" }, { "default", true } });
    controller->setSettings(PropertyList::Dictionary { { "ENABLED", false }, { "OTHER", 1 } });
    const std::array<Argument, 2> arguments { std::monostate(), static_cast<NSObject*>(row.get()) };
    controller->methodForSelector("setPreferenceValue:specifier:")->invoke(*controller, arguments);
    EXPECT_EQ(controller->settings(), PropertyList(PropertyList::Dictionary { { "OTHER", 1 } }));
    EXPECT_EQ(controller->readPreferenceValue(*row), PropertyList(true));
    controller->setPreferenceValueSpecifier({}, *row);
    EXPECT_EQ(controller->settings(), PropertyList(PropertyList::Dictionary { { "OTHER", 1 } }));
}

TEST_F(TheDefaultBridge, AppliesNegateToStoredValuesOnly)
{
    const auto row = specifier({ { "key", "ENABLED" }, { "default", true }, { "negate", true } });
    EXPECT_EQ(controller->readPreferenceValue(*row), PropertyList(true));
}

TEST_F(Lifecycle, TheMethodsThatOthersCallByNameExist)
{
    const auto controller = openController();
    for (const auto* selector :
        { "gotNotification", "sliderChanged:", "sliderStopped:", "updateSliderColor:", "updateBlackBar",
            "sendToMediaServer", "setPreferenceValue:specifier:", "readPreferenceValue:", "autoPreamp",
            "playlistSaver:selectedPreset:", "writeSettings", "sendSettings", "settings", "setSettings:" })
        EXPECT_TRUE(controller->respondsToSelector(selector)) << selector;
    EXPECT_FALSE(controller->respondsToSelector("reboot:"));
}

} // namespace
} // namespace brimsound::tests
