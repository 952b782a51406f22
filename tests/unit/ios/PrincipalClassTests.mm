// The bundle's principal class as the Settings app uses it: by its name and through the runtime.
#include "settings/BrimsoundSettings.h"
#include "tests/unit/settings/TestPlatform.h"

#import <Preferences/PSListController.h>
#import <objc/runtime.h>

#include <gmock/gmock.h>

#include <string>

using brimsound::tests::TestPlatform;

namespace {

class ThePrincipalClass : public testing::Test {
protected:
    static Class principalClass() { return NSClassFromString(@"BrimsoundSettingsListController"); }

    /// Opens a controller as the Settings app does. The caller releases it.
    static PSListController* open()
    {
        return [[principalClass() alloc] initForContentSize:CGSizeMake(320, 568)];
    }

    static std::string selectorIn(PSSpecifier* specifier, NSString* key)
    {
        NSString* selector = [specifier propertyForKey:key];
        return selector ? [selector UTF8String] : "";
    }

    TestPlatform platform;
};

TEST_F(ThePrincipalClass, IsAListController)
{
    ASSERT_NE(principalClass(), Nil);
    EXPECT_TRUE([principalClass() isSubclassOfClass:[PSListController class]]);
}

TEST_F(ThePrincipalClass, AnswersEverySelector)
{
    PSListController* controller = open();
    for (const char* selector : { "initForContentSize:", "gotNotification", "specifiers",
             "tableView:cellForRowAtIndexPath:", "updateSliderColor:", "sendToMediaServer",
             "sliderChanged:", "sliderStopped:", "reportIssue:",
             "mailComposeController:didFinishWithResult:error:", "updateBlackBar",
             "showActivator:", "tableView:heightForRowAtIndexPath:", "setPreferenceValue:specifier:",
             "readPreferenceValue:", "visitWebsite:", "showPresets:", "playlistSaver:selectedPreset:",
             "visitTwitter:", "respring:", "showAlertViewWithMessage:", "enabled", "setEnabled:", "enabledCC",
             "setEnabledCC:", "varDisabled:", "varEnabled:", "setVar:value:", "autoPreamp",
             "setAutoPreamp:", "filterDisabled", "setFilterDisabled:", "checkingDisabled",
             "setCheckingDisabled:", "alertView:clickedButtonAtIndex:", "writeSettings", "sendSettings",
             "suspend", "dealloc", "settings", "setSettings:" })
        EXPECT_TRUE([controller respondsToSelector:sel_registerName(selector)]) << selector;
    [controller release];
}

TEST_F(ThePrincipalClass, AnswersWhatItsSpecifiersName)
{
    PSListController* controller = open();
    int named = 0;
    for (PSSpecifier* specifier in [controller specifiers]) {
        EXPECT_EQ([specifier target], controller);
        for (NSString *key in [NSArray arrayWithObjects:@"get", @"set", @"action", nil]) {
            const auto selector = selectorIn(specifier, key);
            if (selector.empty())
                continue;
            ++named;
            EXPECT_TRUE([controller respondsToSelector:sel_registerName(selector.c_str())]) << selector;
        }
    }
    EXPECT_EQ(named, 16);
    [controller release];
}

TEST_F(ThePrincipalClass, ReadsAndWritesByName)
{
    PSListController* controller = open();
    EXPECT_EQ([[controller performSelector:@selector(autoPreamp)] boolValue], YES);
    [controller performSelector:@selector(setAutoPreamp:) withObject:[NSNumber numberWithBool:NO]];
    EXPECT_EQ([[controller performSelector:@selector(autoPreamp)] boolValue], NO);
    EXPECT_FALSE(brimsound::_autoPreamp);
    [controller release];
}

TEST_F(ThePrincipalClass, TakesNilForItsSettings)
{
    PSListController* controller = open();
    NSDictionary* settings = [NSDictionary dictionaryWithObject:@"value" forKey:@"KEY"];
    [controller performSelector:@selector(setSettings:) withObject:settings];
    EXPECT_TRUE([[controller performSelector:@selector(settings)] isEqual:settings]);
    [controller performSelector:@selector(setSettings:) withObject:nil];
    EXPECT_EQ([controller performSelector:@selector(settings)], nil);
    [controller release];
}

TEST_F(ThePrincipalClass, DoesNothingWithNilAndWithoutSliders)
{
    PSListController* controller = open();
    platform.takeTrace();
    id slider = [[[::UISlider alloc] init] autorelease];
    for (const char* selector : { "sliderChanged:", "sliderStopped:", "updateSliderColor:", "setEnabled:",
             "setEnabledCC:", "setAutoPreamp:", "showAlertViewWithMessage:" }) {
        [controller performSelector:sel_registerName(selector) withObject:nil];
        if (std::string(selector).find("lider") != std::string::npos)
            [controller performSelector:sel_registerName(selector) withObject:slider];
    }
    [controller performSelector:@selector(sendToMediaServer)];
    EXPECT_THAT(platform.takeTrace(), testing::IsEmpty());
    EXPECT_EQ(platform.preferencesFile(), "");
    [controller release];
}

TEST_F(ThePrincipalClass, IsDestroyedWithItsLastReference)
{
    PSListController* controller = open();
    EXPECT_NE(brimsound::_activeController, nullptr);
    [controller release];
    EXPECT_EQ(brimsound::_activeController, nullptr);
}

TEST_F(ThePrincipalClass, OpensWithoutAContentSizeToo)
{
    PSListController* controller = [[principalClass() alloc] init];
    ASSERT_NE(controller, nil);
    EXPECT_NE(brimsound::_activeController, nullptr);
    EXPECT_NE([[controller specifiers] count], 0u);
    [controller release];
    EXPECT_EQ(brimsound::_activeController, nullptr);
}

TEST_F(ThePrincipalClass, ReloadsItsSpecifiersOnRequest)
{
    PSListController* controller = open();
    id before = [[[controller specifiers] objectAtIndex:0] retain];
    [controller reloadSpecifiers];
    EXPECT_NE([[controller specifiers] objectAtIndex:0], before);
    [before release];
    [controller release];
}

TEST_F(ThePrincipalClass, PassesASwitchToThePane)
{
    PSListController* controller = open();
    UITableView* table = [(UIView*)[controller view] isKindOfClass:[UITableView class]]
        ? (UITableView*)[controller view]
        : [controller table];
    UITableViewCell* cell = [controller tableView:table
                            cellForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:0]];
    UISwitch* toggle = (UISwitch*)[cell accessoryView];
    ASSERT_TRUE([toggle isKindOfClass:[UISwitch class]]);
    EXPECT_TRUE([toggle isOn]);
    platform.takeTrace();
    [toggle setOn:NO animated:NO];
    [toggle sendActionsForControlEvents:UIControlEventValueChanged];
    EXPECT_THAT(platform.takeTrace(),
        testing::ElementsAre("write /var/mobile/Library/Preferences/com.quorvix.brimsound.plist",
            "alert In order to disable the equalizer, you will need to respring. (Not now, Respring)"));
    EXPECT_TRUE(platform.answerAlert(0));
    [controller release];
}

TEST_F(ThePrincipalClass, TakesAnyObjectAsTheAlertThatIsAnswered)
{
    PSListController* controller = open();
    const SEL selector = sel_registerName("alertView:clickedButtonAtIndex:");
    // Compilers warn of casts between function types, except to and from this one.
    using AnyFunction = void (*)();
    const auto method = reinterpret_cast<AnyFunction>([controller methodForSelector:selector]);
    const auto answer = reinterpret_cast<void (*)(id, SEL, id, NSInteger)>(method);
    platform.takeTrace();
    answer(controller, selector, nil, 0);
    EXPECT_THAT(platform.takeTrace(), testing::IsEmpty());
    for (id alert : { id(nil), id(@"an alert"), id([[[::UIView alloc] init] autorelease]) }) {
        answer(controller, selector, alert, 1);
        EXPECT_THAT(platform.takeTrace(),
            testing::ElementsAre("shell killall mediaserverd", testing::StartsWith("shell killall ")));
    }
    [controller release];
}

TEST_F(ThePrincipalClass, ShowsNoMailWithoutARootController)
{
    PSListController* controller = open();
    ASSERT_EQ([controller rootController], nil);
    [controller performSelector:@selector(reportIssue:) withObject:[[controller specifiers] objectAtIndex:0]];
    EXPECT_FALSE(platform.composedMail());
    [controller release];
}

TEST_F(ThePrincipalClass, ReturnsNothingBeforeItIsInitialized)
{
    // The class gets its methods when the first controller is created.
    [open() release];
    PSListController* controller = [principalClass() alloc];
    EXPECT_EQ([controller performSelector:@selector(settings)], nil);
    [[controller initForContentSize:CGSizeMake(320, 568)] release];
}

} // namespace
