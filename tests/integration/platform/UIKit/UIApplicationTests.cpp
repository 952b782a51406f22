#include "platform/UIKit/UIApplication.h"

#include "tests/support/OutsideEffects.h"
#include "tests/support/PrivateDesktop.h"

#include <gmock/gmock.h>

namespace brimsound {

using desktop::Reach;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(TheApplication, CanOpenWhatAProgramIsThereFor)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/https");
    for (const auto reach : { Reach::Everything, Reach::ObserverOnly }) {
        const tests::OutsideEffects effects(reach);
        EXPECT_TRUE(UIApplication::sharedApplication().canOpenURL("https://example.com"));
        EXPECT_FALSE(UIApplication::sharedApplication().canOpenURL("twitterrific:///profile"));
        EXPECT_THAT(effects.trace(), IsEmpty());
    }
}

TEST(TheApplication, OpensAURLAndTellsOfIt)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/https");
    const tests::OutsideEffects effects(Reach::Everything);
    EXPECT_TRUE(UIApplication::sharedApplication().openURL("https://example.com/path"));
    EXPECT_EQ(desktop.openedBy("x-scheme-handler/https"), "https://example.com/path");
    EXPECT_THAT(effects.trace(), ElementsAre("url https://example.com/path"));
}

TEST(TheApplication, SaysNothingOfAURLThatNothingOpens)
{
    const tests::PrivateDesktop desktop;
    const tests::OutsideEffects effects(Reach::Everything);
    EXPECT_FALSE(UIApplication::sharedApplication().openURL("https://example.com"));
    EXPECT_THAT(effects.trace(), IsEmpty());
}

TEST(TheApplication, OnlyTellsOfAURLWhenNothingElseIsToBeReached)
{
    tests::PrivateDesktop desktop;
    desktop.addProgram("x-scheme-handler/https", "touch " + (desktop.home() / "started").string());
    const tests::OutsideEffects effects(Reach::ObserverOnly);
    EXPECT_TRUE(UIApplication::sharedApplication().openURL("https://example.com"));
    EXPECT_THAT(effects.trace(), ElementsAre("url https://example.com"));

    // Whatever it would have started has started by the time that this has.
    desktop.addRecordingProgram("x-scheme-handler/http");
    desktop::setReach(Reach::Everything);
    EXPECT_TRUE(UIApplication::sharedApplication().openURL("http://example.com"));
    EXPECT_NE(desktop.openedBy("x-scheme-handler/http"), "");
    EXPECT_FALSE(std::filesystem::exists(desktop.home() / "started"));
}

} // namespace brimsound
