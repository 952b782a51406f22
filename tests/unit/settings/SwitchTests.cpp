#include "platform/CoreFoundation/CFBase.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string postsChanged = "post LMAO_BRIMSOUND_SETTINGS_CHANGED";

std::string showsAlert(const std::string& message)
{
    return "alert " + message + " (Not now, Respring)";
}

class Switch : public testing::Test {
protected:
    Switch()
    {
        _notificationsToSkip = 0;
        _versionBefore = kCFCoreFoundationVersionNumber;
        platform.takeTrace();
    }
    ~Switch() override { kCFCoreFoundationVersionNumber = _versionBefore; }

    /// Calls the method by name, as a switch row does.
    PropertyList call(const char* selector, const PropertyList& value = {})
    {
        const Argument argument = &value;
        return controller->methodForSelector(selector)->invoke(*controller, { &argument, 1 });
    }

    PropertyList get(const char* selector)
    {
        return controller->methodForSelector(selector)->invoke(*controller, {});
    }

    TestPlatform platform;
    RetainPtr<BrimsoundSettingsListController> controller = openController();

private:
    double _versionBefore = 0;
};

using ASwitch = Switch;
using AnAlert = Switch;
using TheRespringButton = Switch;

TEST_F(ASwitch, ReadsItsDefaultFromAFileThatHasNoneOfTheKeysAndStoresNothing)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "PREAMP", 0.0f } });
    const auto before = platform.preferencesFile();
    EXPECT_EQ(get("enabled"), PropertyList(true));
    EXPECT_EQ(get("enabledCC"), PropertyList(true));
    EXPECT_EQ(get("autoPreamp"), PropertyList(true));
    EXPECT_EQ(get("filterDisabled"), PropertyList(false));
    EXPECT_EQ(get("checkingDisabled"), PropertyList(false));
    EXPECT_EQ(platform.preferencesFile(), before);
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

TEST_F(ASwitch, ReadsItsOwnKeyEveryTime)
{
    const std::vector<std::pair<const char*, const char*>> switches { { "enabled", "ENABLED" },
        { "enabledCC", "ENABLED_CC" }, { "autoPreamp", "AUTO_PREAMP" },
        { "filterDisabled", "FILTER_DISABLED" }, { "checkingDisabled", "CHECKING_DISABLED" } };
    for (const auto& [getter, key] : switches) {
        platform.writePreferencesFile(PropertyList(PropertyList::Dictionary { { key, false } }));
        EXPECT_EQ(get(getter), PropertyList(false)) << key;
        platform.writePreferencesFile(PropertyList(PropertyList::Dictionary { { key, true } }));
        EXPECT_EQ(get(getter), PropertyList(true)) << key;
    }
}

TEST_F(ASwitch, ReturnsAStoredValueOfAnotherTypeAsItIs)
{
    platform.writePreferencesFile(PropertyList(PropertyList::Dictionary { { "ENABLED", "perhaps" },
        { "ENABLED_CC", 7 }, { "AUTO_PREAMP", PropertyList::Array { 1, 2 } }, { "FILTER_DISABLED", 0.5 },
        { "CHECKING_DISABLED", "YES" } }));
    EXPECT_EQ(get("enabled"), PropertyList("perhaps"));
    EXPECT_EQ(get("enabledCC"), PropertyList(7));
    EXPECT_EQ(get("autoPreamp"), PropertyList(PropertyList::Array { 1, 2 }));
    EXPECT_EQ(get("filterDisabled"), PropertyList(0.5));
    EXPECT_EQ(get("checkingDisabled"), PropertyList("YES"));
}

TEST_F(ASwitch, ReadsAnyKeyOnAnyDefault)
{
    platform.writePreferencesFile(PropertyList(PropertyList::Dictionary { { "KEY", "value" } }));
    EXPECT_EQ(call("varEnabled:", "KEY"), PropertyList("value"));
    EXPECT_EQ(call("varDisabled:", "KEY"), PropertyList("value"));
    EXPECT_EQ(call("varEnabled:", "OTHER"), PropertyList(true));
    EXPECT_EQ(call("varDisabled:", "OTHER"), PropertyList(false));
}

TEST_F(ASwitch, ForTheEqualizerWritesTheFileAndOffersARespring)
{
    call("setEnabled:", false);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(writesFile, showsAlert("In order to disable the equalizer, you will need to respring.")));
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "PEAKING_EQ_VALUES", "PRESETS", "ENABLED" }));
    EXPECT_EQ(*storedPreferences().find("ENABLED"), PropertyList(false));
    platform.answerAlert(0);

    call("setEnabled:", true);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(writesFile, showsAlert("In order to enable the equalizer, you will need to respring.")));
    EXPECT_EQ(*storedPreferences().find("ENABLED"), PropertyList(true));
}

TEST_F(ASwitch, ForTheControlCenterHasItsOwnMessage)
{
    call("setEnabledCC:", false);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(writesFile,
            showsAlert(
                "In order to remove the equalizer from the control center, you will need to respring.")));
    EXPECT_EQ(*storedPreferences().find("ENABLED_CC"), PropertyList(false));
    platform.answerAlert(0);

    call("setEnabledCC:", true);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(writesFile,
            showsAlert("In order to add the equalizer to the control center, you will need to respring.")));
}

TEST_F(ASwitch, OffersARespringEvenWhenNothingChanged)
{
    platform.writePreferencesFile(PropertyList(PropertyList::Dictionary { { "ENABLED", true } }));
    call("setEnabled:", true);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(writesFile, showsAlert("In order to enable the equalizer, you will need to respring.")));
}

TEST_F(ASwitch, OfTheEngineWritesTheFileAndNotifiesItOnceWithoutAnAlert)
{
    const std::vector<std::pair<const char*, const char*>> switches { { "setAutoPreamp:", "AUTO_PREAMP" },
        { "setFilterDisabled:", "FILTER_DISABLED" }, { "setCheckingDisabled:", "CHECKING_DISABLED" } };
    for (const auto& [setter, key] : switches) {
        call(setter, true);
        EXPECT_THAT(platform.takeTrace(), ElementsAre(writesFile, postsChanged)) << key;
        EXPECT_EQ(*storedPreferences().find(key), PropertyList(true)) << key;
        EXPECT_FALSE(platform.answerAlert(0)) << key;
    }
}

TEST_F(ASwitch, StoresTheValueThatItWasGiven)
{
    const std::array<PropertyList, 2> values { "KEY", "any value" };
    const std::array<Argument, 2> arguments { values.data(), &values[1] };
    controller->methodForSelector("setVar:value:")->invoke(*controller, arguments);
    EXPECT_EQ(*storedPreferences().find("KEY"), PropertyList("any value"));
    EXPECT_THAT(platform.takeTrace(), ElementsAre(writesFile, postsChanged));
}

TEST_F(ASwitch, KeepsOtherValuesInTheFile)
{
    platform.writePreferencesFile(
        PropertyList(PropertyList::Dictionary { { "SELECTED_PRESET", "Rock" }, { "PREAMP", 2.5f } }));
    call("setFilterDisabled:", true);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "SELECTED_PRESET", "PREAMP", "FILTER_DISABLED" }));
}

TEST_F(ASwitch, ForAutoPreampCountsForTheOpenPaneAtOnce)
{
    const Pane pane(platform);
    call("setAutoPreamp:", false);
    pane.drag(3, 4.5f);
    EXPECT_EQ(pane.slider(0).value(), 0);
    call("setAutoPreamp:", true);
    pane.drag(3, 5);
    EXPECT_EQ(pane.slider(0).value(), -5);
}

TEST_F(ASwitch, IsNotTakenForAChangeOfTheGains)
{
    call("setFilterDisabled:", true);
    EXPECT_EQ(_notificationsToSkip, 0u);
    platform.takeTrace();
    platform.deliverNotifications();
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

TEST_F(ASwitch, WithoutAValueOrAKeyStoresNothingAndNotifiesNobody)
{
    _autoPreamp = true;
    for (const auto* selector : { "setEnabled:", "setEnabledCC:", "setAutoPreamp:", "setFilterDisabled:",
             "setCheckingDisabled:", "showAlertViewWithMessage:" }) {
        controller->methodForSelector(selector)->invoke(*controller, {});
        call(selector, {});
    }
    const std::array<PropertyList, 2> values { PropertyList(), "value" };
    const std::array<Argument, 2> withoutKey { values.data(), &values[1] };
    const std::array<Argument, 2> withoutValue { &values[1], values.data() };
    controller->methodForSelector("setVar:value:")->invoke(*controller, withoutKey);
    controller->methodForSelector("setVar:value:")->invoke(*controller, withoutValue);
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
    EXPECT_EQ(platform.preferencesFile(), "");
    EXPECT_FALSE(platform.answerAlert(0));
    EXPECT_TRUE(_autoPreamp);
}

TEST_F(AnAlert, HasAMessageAndNoTitle)
{
    call("setEnabled:", false);
    EXPECT_EQ(platform.alertTitle(), "");
}

TEST_F(AnAlert, AnsweredWithNotNowRunsNothingAndKeepsTheSetting)
{
    call("setEnabled:", false);
    platform.takeTrace();
    EXPECT_TRUE(platform.answerAlert(0));
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
    EXPECT_EQ(*storedPreferences().find("ENABLED"), PropertyList(false));
    EXPECT_FALSE(platform.answerAlert(0));
}

TEST_F(AnAlert, AnsweredWithRespringRestartsTheMediaServerAndThenTheInterface)
{
    const auto commandsAt = [&](double version) {
        kCFCoreFoundationVersionNumber = version;
        call("setEnabled:", false);
        platform.takeTrace();
        platform.answerAlert(1);
        return platform.takeTrace();
    };
    EXPECT_THAT(commandsAt(792.0), ElementsAre("shell killall mediaserverd", "shell killall backboardd"));
    EXPECT_THAT(commandsAt(847.2), ElementsAre("shell killall mediaserverd", "shell killall backboardd"));
    EXPECT_THAT(commandsAt(791.9), ElementsAre("shell killall mediaserverd", "shell killall SpringBoard"));
}

TEST_F(AnAlert, WaitsUntilThePreviousOneIsAnswered)
{
    call("setEnabled:", false);
    platform.takeTrace();
    call("setEnabledCC:", false);
    EXPECT_THAT(platform.takeTrace(), ElementsAre(writesFile));
    platform.answerAlert(0);
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre(showsAlert(
            "In order to remove the equalizer from the control center, you will need to respring.")));
}

TEST_F(TheRespringButton, RestartsNothing)
{
    const auto row = make<PSSpecifier>("Respring", *controller, PropertyList::Dictionary());
    controller->respring(*row);
    controller->showActivator(*row);
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
    EXPECT_EQ(platform.preferencesFile(), "");
}

/// Records when it would save its own settings.
class WithModel : public BrimsoundSettingsListController {
public:
    void writeSettings() override { called.emplace_back("writeSettings"); }
    void sendSettings() override { called.emplace_back("sendSettings"); }

    std::vector<std::string> called;
};

TEST_F(TheRespringButton, WritesAndThenSendsTheSettingsOfAModel)
{
    const auto withModel = make<WithModel>();
    withModel->initForContentSize({ 320, 568 });
    const auto row = make<PSSpecifier>("Respring", *withModel, PropertyList::Dictionary());
    const Argument argument = static_cast<NSObject*>(row.get());
    withModel->methodForSelector("respring:")->invoke(*withModel, { &argument, 1 });
    EXPECT_THAT(withModel->called, ElementsAre("writeSettings", "sendSettings"));
}

TEST_F(TheRespringButton, IsNotNeededForAPaneThatIsSuspendedToWrite)
{
    const auto withModel = make<WithModel>();
    withModel->initForContentSize({ 320, 568 });
    withModel->suspend();
    EXPECT_THAT(withModel->called, ElementsAre("writeSettings"));
}

} // namespace
} // namespace brimsound::tests
