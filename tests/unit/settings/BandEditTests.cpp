#include "settings/tweak.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cmath>
#include <stdexcept>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

class BandEdit : public testing::Test {
protected:
    BandEdit() { _notificationsToSkip = 0; }

    /// Writes what a pane writes, together with the given values.
    void store(const PropertyList::Dictionary& preferences)
    {
        platform.writePreferencesFile(PropertyList(preferences));
    }
    void storeAutoPreamp(bool on) { store({ { "AUTO_PREAMP", on } }); }

    TestPlatform platform;
};

using TouchingASlider = BandEdit;
using DraggingABand = BandEdit;
using DraggingThePreamp = BandEdit;
using ReleasingASlider = BandEdit;
using SendingToTheMediaServer = BandEdit;
/// Applies a preset as the preset panel does.
void applyPreset(BrimsoundSettingsListController& controller, const PropertyList& gains)
{
    const auto panel = make<PlaylistSaver>(controller);
    controller.playlistSaverSelectedPreset(*panel, gains);
}

using ApplyingAPreset = BandEdit;

TEST_F(TouchingASlider, SendsAllElevenValuesAtOnce)
{
    storeAutoPreamp(false);
    const Pane pane(platform);
    pane.slider(0).setValue(-3);
    pane.slider(10).setValue(5.5f);
    pane.touch(3);
    EXPECT_THAT(pane.trace(), ElementsAre(equalizerSend));
    EXPECT_THAT(pane.sent(), ElementsAre(ElementsAre(-3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5.5f)));
}

TEST_F(TouchingASlider, SendsNothingButTheValues)
{
    const Pane pane(platform);
    pane.touch(3);
    const auto userInfo = platform.messages().at(0);
    EXPECT_THAT(keysOf(userInfo), ElementsAre("vals"));
    for (const auto& value : *userInfo.find("vals")->asArray())
        EXPECT_TRUE(value.asReal());
}

TEST_F(TouchingASlider, WithoutMovingItStillSavesOnRelease)
{
    const Pane pane(platform);
    pane.touch(3);
    pane.lift(3);
    EXPECT_THAT(pane.trace(), ElementsAre(equalizerSend, writesFile, postsFinished));
}

TEST_F(DraggingABand, ShowsTheValueWithOneDecimalUntilItIsReleased)
{
    storeAutoPreamp(false);
    const Pane pane(platform);
    pane.touch(3);
    EXPECT_EQ(pane.label(3).text(), "0.0");
    pane.drag(3, -3.46f);
    EXPECT_EQ(pane.label(3).text(), "-3.5");
    EXPECT_EQ(pane.label(0).text(), "Pre");
    pane.lift(3);
    EXPECT_EQ(pane.label(3).text(), "310");
}

TEST_F(DraggingABand, ShowsADecimalPointInEveryLanguage)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
    const Pane pane(platform);
    pane.drag(3, -3.46f);
    EXPECT_EQ(pane.label(3).text(), "-3.5");
    std::setlocale(LC_ALL, "C");
}

TEST_F(DraggingABand, SetsThePreampToMinusTheHighestBandAndSendsOnce)
{
    const Pane pane(platform);
    pane.slider(7).setValue(-3);
    pane.drag(2, 4.5f);
    EXPECT_EQ(pane.slider(0).value(), -4.5f);
    EXPECT_EQ(pane.label(0).text(), "-4.5");
    EXPECT_EQ(pane.label(2).text(), "4.5");
    EXPECT_THAT(pane.trace(), ElementsAre(equalizerSend));
    EXPECT_THAT(pane.sent(), ElementsAre(ElementsAre(-4.5f, 0, 4.5f, 0, 0, 0, 0, -3, 0, 0, 0)));
}

TEST_F(DraggingABand, LooksAtAllBandsForTheHighest)
{
    const Pane pane(platform);
    pane.slider(10).setValue(9);
    pane.drag(2, 4.5f);
    EXPECT_EQ(pane.slider(0).value(), -9);
}

TEST_F(DraggingABand, RaisesThePreampToTwelveWhenEveryBandIsAtTheBottom)
{
    const Pane pane(platform);
    for (std::size_t i = 1; i < 11; ++i)
        pane.slider(i).setValue(-12);
    pane.drag(4, -12);
    EXPECT_EQ(pane.slider(0).value(), 12);
}

TEST_F(DraggingABand, NegatesAZeroToMinusZeroWhateverThePreampWasBefore)
{
    const Pane pane(platform);
    pane.drag(2, 0);
    EXPECT_TRUE(std::signbit(pane.slider(0).value())) << "after 0";
    EXPECT_EQ(pane.label(0).text(), "-0.0") << "which is how \"%.1f\" prints it";
    pane.drag(2, 4.5f);
    pane.drag(2, 0);
    EXPECT_TRUE(std::signbit(pane.slider(0).value())) << "after -4.5";
    EXPECT_EQ(pane.label(0).text(), "-0.0");
    EXPECT_EQ(pane.label(2).text(), "0.0");
    EXPECT_TRUE(std::signbit(pane.sent().back()[0]));
    pane.lift(2);
    EXPECT_TRUE(std::signbit(floatForKey(storedPreferences(), "PREAMP")));
}

TEST_F(DraggingABand, TakesTheLastOfEqualBandsForTheHighest)
{
    const Pane pane(platform);
    pane.slider(10).setValue(-0.0f);
    ASSERT_TRUE(std::signbit(pane.slider(10).value()));
    pane.drag(2, 0);
    EXPECT_FALSE(std::signbit(pane.slider(0).value())) << "that of the minus zero, negated";
    EXPECT_EQ(pane.label(0).text(), "0.0");
}

TEST_F(DraggingABand, IgnoresThePreampItselfWhenLookingForTheHighest)
{
    const Pane pane(platform);
    pane.slider(0).setValue(10);
    pane.drag(4, 2);
    EXPECT_EQ(pane.slider(0).value(), -2);
}

TEST_F(DraggingABand, RecolorsAllBandsAndMovesTheBarWithThePreamp)
{
    const Pane pane(platform);
    const auto barBefore = pane.controller().blackBar()->frame().origin.x;
    pane.drag(3, 12);
    EXPECT_THAT(pane.color(3), ElementsAre(1, 1, 0, 1));
    EXPECT_THAT(pane.color(4), ElementsAre(0, 1, 0, 1));
    EXPECT_GT(pane.controller().blackBar()->frame().origin.x, barBefore);
}

TEST_F(DraggingABand, LeavesThePreampAloneWhenThatIsNotAutomatic)
{
    storeAutoPreamp(false);
    const Pane pane(platform);
    const auto bar = pane.controller().blackBar()->frame();
    pane.drag(3, 12);
    EXPECT_EQ(pane.slider(0).value(), 0);
    EXPECT_THAT(pane.color(3), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(pane.color(4), ElementsAre(1, 1, 0, 1));
    EXPECT_EQ(pane.controller().blackBar()->frame(), bar);
    EXPECT_EQ(pane.label(0).text(), "Pre");
}

TEST_F(DraggingABand, SendsOneMessageForEveryEventInsideAndOutside)
{
    const Pane pane(platform);
    pane.touch(3);
    for (int i = 0; i < 5; ++i)
        pane.drag(3, static_cast<float>(i));
    pane.dragOutside(3, 6);
    EXPECT_EQ(pane.sent().size(), 7u);
    EXPECT_EQ(pane.sent().back()[3], 6);
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(DraggingThePreamp, SendsItsOwnValueAndRecomputesNothing)
{
    const Pane pane(platform);
    pane.slider(3).setValue(6);
    pane.drag(0, -1);
    EXPECT_EQ(pane.slider(0).value(), -1);
    EXPECT_EQ(pane.label(0).text(), "-1.0");
    EXPECT_THAT(pane.sent(), ElementsAre(ElementsAre(-1, 0, 0, 6, 0, 0, 0, 0, 0, 0, 0)));
    EXPECT_THAT(pane.color(3), ElementsAre(1, testing::DoubleNear(7.0 / 12, 1e-6), 0, 1));
}

TEST_F(ReleasingASlider, WritesTheFileThenTellsEveryoneOnce)
{
    const Pane pane(platform);
    pane.touch(3);
    pane.drag(3, 4.5f);
    pane.lift(3);
    EXPECT_THAT(pane.trace(), ElementsAre(equalizerSend, equalizerSend, writesFile, postsFinished));
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "PEAKING_EQ_VALUES", "PRESETS", "PREAMP" }));
    EXPECT_THAT(
        floatsIn(storedPreferences(), "PEAKING_EQ_VALUES"), ElementsAre(0, 0, 4.5f, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(floatForKey(storedPreferences(), "PREAMP"), -4.5f);
}

TEST_F(ReleasingASlider, IsNotMistakenForAChangeByAnotherProcess)
{
    const Pane pane(platform);
    pane.touch(3);
    pane.lift(3);
    EXPECT_EQ(_notificationsToSkip, 1u);
    pane.trace();
    platform.deliverNotifications();
    EXPECT_THAT(pane.trace(), ElementsAre(deliversFinished));
    EXPECT_EQ(_notificationsToSkip, 0u);
}

TEST_F(ReleasingASlider, OutsideOrCanceledOrDoneEditingSavesAsWell)
{
    const Pane pane(platform);
    pane.liftOutside(3);
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    pane.cancel(3);
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    pane.slider(3).sendActionsForControlEvents(UIControlEventEditingDidEnd);
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
    pane.slider(3).sendActionsForControlEvents(UIControlEventEditingDidEndOnExit);
    EXPECT_THAT(pane.trace(), ElementsAre(writesFile, postsFinished));
}

TEST_F(ReleasingASlider, RestoresBothCaptionsForABand)
{
    const Pane pane(platform);
    pane.drag(3, 4.5f);
    ASSERT_EQ(pane.label(0).text(), "-4.5");
    pane.lift(3);
    EXPECT_EQ(pane.label(3).text(), "310");
    EXPECT_EQ(pane.label(0).text(), "Pre");
}

TEST_F(ReleasingASlider, RestoresOnlyItsOwnCaptionForThePreamp)
{
    const Pane pane(platform);
    pane.touch(3);
    pane.drag(0, 1);
    pane.lift(0);
    EXPECT_EQ(pane.label(0).text(), "Pre");
    EXPECT_EQ(pane.label(3).text(), "0.0");
}

TEST_F(ReleasingASlider, KeepsTheSelectedPresetForThePreampAndDropsItForABand)
{
    store({ { "SELECTED_PRESET", "Rock" }, { "ENABLED", false } });
    const Pane pane(platform);
    pane.lift(0);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "SELECTED_PRESET", "ENABLED", "PREAMP" }));
    pane.lift(3);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "ENABLED", "PREAMP" }));
    EXPECT_EQ(*storedPreferences().find("ENABLED"), PropertyList(false));
}

TEST_F(ReleasingASlider, StoresNoGainsInAFileThatHasNone)
{
    store({ { "ENABLED", true } });
    const Pane pane(platform);
    pane.drag(3, 4.5f);
    pane.lift(3);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "ENABLED", "PREAMP" }));
    EXPECT_EQ(floatForKey(storedPreferences(), "PREAMP"), -4.5f);
}

TEST_F(ReleasingASlider, StoresRealNumbers)
{
    store(preferencesWith({ 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 }));
    const Pane pane(platform);
    pane.drag(3, 4);
    pane.lift(3);
    const auto stored = storedPreferences();
    for (const auto& gain : *arrayForKey(stored, "PEAKING_EQ_VALUES"))
        EXPECT_TRUE(gain.asReal());
    EXPECT_TRUE(stored.find("PREAMP")->asReal());
}

TEST_F(ReleasingASlider, NeverLengthensTheStoredGains)
{
    store(preferencesWith({ 0, 0, 0, 0 }));
    const Pane pane(platform);
    for (std::size_t i = 1; i < 11; ++i)
        pane.slider(i).setValue(static_cast<float>(i));
    pane.lift(3);
    EXPECT_THAT(floatsIn(storedPreferences(), "PEAKING_EQ_VALUES"), ElementsAre(1, 2, 3, 4));

    store({ { "PEAKING_EQ_VALUES", PropertyList::Array() } });
    pane.lift(3);
    EXPECT_THAT(floatsIn(storedPreferences(), "PEAKING_EQ_VALUES"), ElementsAre());
}

TEST_F(ReleasingASlider, LeavesSurplusStoredGainsAsTheyAre)
{
    store(preferencesWith({ 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9 }));
    const Pane pane(platform);
    for (std::size_t i = 1; i < 11; ++i)
        pane.slider(i).setValue(1);
    pane.lift(3);
    EXPECT_THAT(
        floatsIn(storedPreferences(), "PEAKING_EQ_VALUES"), ElementsAre(1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 9, 9));
}

TEST_F(ReleasingASlider, KeepsGainsThatAreNoArrayAsTheyAre)
{
    store({ { "PEAKING_EQ_VALUES", "flat" } });
    const Pane pane(platform);
    pane.lift(3);
    EXPECT_EQ(*storedPreferences().find("PEAKING_EQ_VALUES"), PropertyList("flat"));
}

TEST_F(ReleasingASlider, DoesNotDependOnTheMediaServer)
{
    const Pane pane(platform);
    platform.stopMediaServer();
    pane.touch(3);
    pane.lift(3);
    EXPECT_THAT(pane.trace(),
        ElementsAre(equalizerSend + " failed", StartsWith("log Brimsound: ERROR SENDING TO MEDIA SERVER "),
            writesFile, postsFinished));
}

TEST_F(SendingToTheMediaServer, LogsTheErrorItself)
{
    const Pane pane(platform);
    platform.stopMediaServer();
    pane.touch(3);
    EXPECT_THAT(pane.trace().back(),
        MatchesRegex("log Brimsound: ERROR SENDING TO MEDIA SERVER "
                     "Error Domain=[A-Za-z.]+ Code=[0-9]+ \".+\""));
}

TEST_F(SendingToTheMediaServer, LogsAFailureAndLooksTheCenterUpAgain)
{
    const Pane pane(platform);
    const auto center = retain(pane.controller().center());
    platform.stopMediaServer();
    pane.drag(3, 1);
    EXPECT_THAT(pane.trace(),
        ElementsAre(equalizerSend + " failed", StartsWith("log Brimsound: ERROR SENDING TO MEDIA SERVER ")));
    EXPECT_FALSE(pane.controller().center() == center.get());

    platform.startMediaServer();
    pane.drag(3, 2);
    EXPECT_THAT(pane.trace(), ElementsAre(equalizerSend));
    EXPECT_EQ(pane.sent().size(), 2u);
    EXPECT_EQ(pane.sent().back()[3], 2);
}

TEST_F(SendingToTheMediaServer, KeepsTheCenterWhileAllIsWell)
{
    const Pane pane(platform);
    const auto center = retain(pane.controller().center());
    pane.drag(3, 1);
    pane.drag(3, 2);
    EXPECT_EQ(pane.controller().center(), center.get());
}

PropertyList rising()
{
    PropertyList::Array gains;
    for (int i = 1; i <= 10; ++i)
        gains.emplace_back(static_cast<float>(i) - 5.5f);
    return gains;
}

TEST_F(ApplyingAPreset, ReplaysTenDragsAndReleases)
{
    store({ { "AUTO_PREAMP", false }, { "PEAKING_EQ_VALUES", PropertyList::Array(10, 0) },
        { "SELECTED_PRESET", "Rock" }, { "PREAMP", 2.0f } });
    const Pane pane(platform);
    applyPreset(pane.controller(), rising());

    std::vector<std::string> expected;
    for (int i = 0; i < 10; ++i)
        expected.insert(expected.end(), { equalizerSend, writesFile, postsFinished });
    EXPECT_EQ(pane.trace(), expected);
    EXPECT_THAT(
        pane.values(), ElementsAre(2, -4.5f, -3.5f, -2.5f, -1.5f, -0.5f, 0.5f, 1.5f, 2.5f, 3.5f, 4.5f));
    // Each message contains the bands applied so far.
    for (std::size_t i = 0; i < 10; ++i) {
        const auto values = pane.sent()[i];
        EXPECT_EQ(values[0], 2);
        EXPECT_EQ(values[i + 1], static_cast<float>(i) - 4.5f);
        for (std::size_t later = i + 2; later < 11; ++later)
            EXPECT_EQ(values[later], 0);
    }
    EXPECT_THAT(floatsIn(storedPreferences(), "PEAKING_EQ_VALUES"),
        ElementsAre(-4.5f, -3.5f, -2.5f, -1.5f, -0.5f, 0.5f, 1.5f, 2.5f, 3.5f, 4.5f));
    EXPECT_EQ(storedPreferences().find("SELECTED_PRESET"), nullptr);
    EXPECT_THAT(pane.captions(),
        ElementsAre("Pre", "60", "170", "310", "600", "1K", "3K", "6K", "12K", "14K", "16K"));
}

/// Records the events that a slider sends while a preset is applied.
class EventListener : public NSObject {
public:
    std::span<const Method> methods() const override
    {
        static const std::array table {
            method<&EventListener::valueChanged>("valueChanged:"),
            method<&EventListener::dragged>("dragged:"),
            method<&EventListener::lifted>("lifted:"),
        };
        return table;
    }

    void valueChanged(UISlider& slider) { heard.push_back("value changed to " + text(slider)); }
    void dragged(UISlider& slider) { heard.push_back("dragged to " + text(slider)); }
    void lifted(UISlider& slider) { heard.push_back("lifted at " + text(slider)); }

    std::vector<std::string> heard;

private:
    static std::string text(const UISlider& slider) { return std::to_string(std::lround(slider.value())); }
};

TEST_F(ApplyingAPreset, SendsEachBandsEventsInTheOrderOfAGesture)
{
    const auto listener = make<EventListener>();
    const Pane pane(platform);
    for (const std::size_t i : { 0u, 1u, 10u }) {
        auto& slider = pane.slider(i);
        slider.addTargetActionForControlEvents(*listener, "valueChanged:", UIControlEventValueChanged);
        slider.addTargetActionForControlEvents(*listener, "dragged:", UIControlEventTouchDragInside);
        slider.addTargetActionForControlEvents(*listener, "lifted:", UIControlEventTouchUpInside);
    }
    applyPreset(pane.controller(), PropertyList::Array { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 });
    EXPECT_THAT(listener->heard,
        ElementsAre("value changed to 1", "dragged to 1", "lifted at 1", "value changed to 10",
            "dragged to 10", "lifted at 10"));
}

TEST_F(ApplyingAPreset, RecomputesThePreampBandByBandWhenItIsAutomatic)
{
    const Pane pane(platform);
    applyPreset(pane.controller(), rising());
    std::vector<float> preamps;
    for (const auto& values : pane.sent())
        preamps.push_back(values[0]);
    // The bands that are not applied yet are still 0.
    EXPECT_THAT(preamps, ElementsAre(0, 0, 0, 0, 0, -0.5f, -1.5f, -2.5f, -3.5f, -4.5f));
}

TEST_F(ApplyingAPreset, IsNotMistakenForTenChangesByAnotherProcess)
{
    const Pane pane(platform);
    applyPreset(pane.controller(), rising());
    pane.trace();
    EXPECT_EQ(_notificationsToSkip, 10u);
    platform.deliverNotifications();
    EXPECT_EQ(pane.trace(), std::vector<std::string>(10, deliversFinished));

    // The caller saves the preset's name. The pane does not count that notification as its own.
    platform.postFromAnotherProcess(settingsFinishedNotification);
    platform.deliverNotifications();
    EXPECT_THAT(pane.trace(), ElementsAre(deliversFinished, logsReload));
}

TEST_F(ApplyingAPreset, FailsWithARangeErrorAtTheFirstGainThatIsMissing)
{
    storeAutoPreamp(false);
    const Pane pane(platform);
    const PropertyList two(PropertyList::Array { 1, 2 });
    EXPECT_THROW(applyPreset(pane.controller(), two), std::out_of_range);
    EXPECT_THAT(pane.values(), ElementsAre(0, 1, 2, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(pane.sent().size(), 2u);
}

TEST_F(ApplyingAPreset, BeforeTheSlidersExistDoesNothing)
{
    const auto controller = openController();
    platform.takeTrace();
    applyPreset(*controller, rising());
    EXPECT_THAT(platform.takeTrace(), ElementsAre());
}

TEST_F(ApplyingAPreset, ThatIsNullDoesNothing)
{
    const Pane pane(platform);
    applyPreset(pane.controller(), {});
    EXPECT_THAT(pane.trace(), IsEmpty());
}

/// Calls all methods with a slider argument by name.
void callWithSlider(BrimsoundSettingsListController& controller, UISlider& slider)
{
    const Argument argument = static_cast<NSObject*>(&slider);
    for (const auto* selector : { "sliderChanged:", "sliderStopped:", "updateSliderColor:" })
        controller.methodForSelector(selector)->invoke(controller, { &argument, 1 });
}

TEST_F(BandEdit, BeforeTheSlidersExistDoesNothing)
{
    const auto controller = openController();
    const auto slider = make<UISlider>();
    platform.takeTrace();
    callWithSlider(*controller, *slider);
    for (const auto* selector : { "sendToMediaServer", "updateBlackBar" })
        controller->methodForSelector(selector)->invoke(*controller, {});
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
    EXPECT_THAT(platform.messages(), IsEmpty());
    EXPECT_EQ(platform.preferencesFile(), "");
    EXPECT_EQ(_notificationsToSkip, 0u);
}

TEST_F(BandEdit, OfASliderThatIsNotThePanesDoesNothing)
{
    const Pane pane(platform);
    const Pane other(platform);
    other.slider(3).setValue(6);
    other.slider(3).setMinimumTrackTintColor(UIColor::blackColor());
    callWithSlider(pane.controller(), other.slider(3));
    callWithSlider(pane.controller(), other.slider(0));
    EXPECT_THAT(pane.trace(), IsEmpty());
    EXPECT_THAT(other.color(3), ElementsAre(0, 0, 0, 1));
    EXPECT_THAT(pane.captions(),
        ElementsAre("Pre", "60", "170", "310", "600", "1K", "3K", "6K", "12K", "14K", "16K"));
    EXPECT_EQ(platform.preferencesFile(), "");
    EXPECT_EQ(_notificationsToSkip, 0u);
}

} // namespace
} // namespace brimsound::tests
