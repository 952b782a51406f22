#include "platform/desktop/UIKit/UrlOpener.h"

#include "tests/support/PrivateDesktop.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <sys/wait.h>

namespace brimsound::desktop {

TEST(AURL, HasAProgramWhenOneIsSetUpForItsScheme)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/http");
    desktop.addRecordingProgram("x-scheme-handler/tweetbot");
    EXPECT_TRUE(hasProgramFor("http://example.com"));
    EXPECT_TRUE(hasProgramFor("HTTP://example.com"));
    EXPECT_TRUE(hasProgramFor("tweetbot:///user_profile/name"));
    EXPECT_FALSE(hasProgramFor("https://example.com"));
    EXPECT_FALSE(hasProgramFor("tweet:///user_profile/name"));
}

TEST(AURL, HasNoProgramWhenItIsNone)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/http");
    for (const auto* text :
        { "", "http", "/http", "example.com/http:", ":http", "1http:", "ht tp://example.com" })
        EXPECT_FALSE(hasProgramFor(text)) << text;
}

TEST(AURL, HasNoProgramWhenThatIsNotInstalled)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/http");
    desktop.removeProgram("x-scheme-handler/http");
    EXPECT_FALSE(hasProgramFor("http://example.com"));
}

TEST(OpeningAURL, StartsItsProgramWithTheURLAsItIs)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/twitter");
    const auto* url = "twitter://user?screen_name=Name&other=%20'$(HOME);|\"";
    EXPECT_TRUE(openWithProgram(url));
    EXPECT_EQ(desktop.openedBy("x-scheme-handler/twitter"), url);
}

TEST(OpeningAURL, LeavesNoProcessToWaitFor)
{
    tests::PrivateDesktop desktop;
    desktop.addRecordingProgram("x-scheme-handler/http");
    EXPECT_TRUE(openWithProgram("http://example.com"));
    EXPECT_NE(desktop.openedBy("x-scheme-handler/http"), "");
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(OpeningAURL, DoesNotWaitForTheProgramsEnd)
{
    tests::PrivateDesktop desktop;
    desktop.addProgram("x-scheme-handler/http", "/bin/sh -c \"exec sleep 5 >/dev/null 2>&1\" %u");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(openWithProgram("http://example.com"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3));
}

TEST(OpeningAURL, FailsWithoutAProgram)
{
    const tests::PrivateDesktop desktop;
    EXPECT_FALSE(openWithProgram("http://example.com"));
    EXPECT_FALSE(openWithProgram("no URL"));
}

TEST(OpeningAFile, StartsTheProgramForItsTypeWithIt)
{
    tests::PrivateDesktop desktop;
    EXPECT_FALSE(openFileWithProgram("/tmp/a b.eml", "message/rfc822"));
    desktop.addRecordingProgram("message/rfc822");
    EXPECT_TRUE(openFileWithProgram("/tmp/a b.eml", "message/rfc822"));
    EXPECT_EQ(desktop.openedBy("message/rfc822"), "/tmp/a b.eml");
    EXPECT_FALSE(openFileWithProgram("relative.eml", "message/rfc822"));
}

} // namespace brimsound::desktop
