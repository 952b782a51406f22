#include "platform/UIKit/UIAlertView.h"

#include "platform/UIKit/UIViewController.h"
#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"
#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

namespace {

using doubles::currentAlert;
using doubles::pressAlertButton;
using testing::ElementsAre;
using testing::IsEmpty;

/// A controller that writes down the answers that it gets.
class Asking : public UIViewController, public UIAlertViewDelegate {
public:
    explicit Asking(std::vector<std::string>& answers)
        : _answers(answers)
    {
    }

    void alertViewClickedButtonAtIndex(UIAlertView&, long buttonIndex) override
    {
        _answers.push_back(std::to_string(buttonIndex));
    }

private:
    std::vector<std::string>& _answers;
};

/// In a window with a root controller. Another window is the key window.
class AnAlertView : public testing::Test {
protected:
    AnAlertView()
    {
        doubles::resetUIKit();
        [keyWindow setRootViewController:keyRoot];
        [keyWindow makeKeyAndVisible];
        [window setRootViewController:root];
        [[root view] addSubview:[nativeAsking() view]];
        doubles::takeTrace();
    }

    ~AnAlertView() override
    {
        [root dismissViewControllerAnimated:NO completion:nil];
        [keyRoot dismissViewControllerAnimated:NO completion:nil];
        doubles::resetUIKit();
        asking = nullptr;
        [window release];
        [keyWindow release];
        [pool release];
    }

    ::UIViewController* nativeAsking() const { return ios::nativeOf(*asking); }

    RetainPtr<UIAlertView> alert(const std::string& message) const
    {
        return make<UIAlertView>(
            "", message, asking.get(), "No", std::vector<std::string> { "Yes", "Perhaps" });
    }

    /// Closes the pane, at the end of a turn of the main loop.
    void closeAsking()
    {
        [[nativeAsking() view] removeFromSuperview];
        asking = nullptr;
        [pool release];
        pool = [[NSAutoreleasePool alloc] init];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    UIWindow* keyWindow = [[UIWindow alloc] initWithFrame:ios::native(CGRect { {}, { 320, 568 } })];
    UIWindow* window = [[UIWindow alloc] initWithFrame:ios::native(CGRect { {}, { 320, 568 } })];
    ::UIViewController* keyRoot = [[[::UIViewController alloc] init] autorelease];
    ::UIViewController* root = [[[::UIViewController alloc] init] autorelease];
    std::vector<std::string> answers;
    RetainPtr<Asking> asking = make<Asking>(answers);
};

TEST_F(AnAlertView, ShowsItsTextsAndCancelsWithTheFirstButton)
{
    make<UIAlertView>("Title", "Really?", nullptr, "No", std::vector<std::string> { "Yes" })->show();
    UIAlertController* shown = currentAlert();
    EXPECT_TRUE([[shown title] isEqual:@"Title"]);
    EXPECT_TRUE([[shown message] isEqual:@"Really?"]);
    EXPECT_EQ([shown preferredStyle], UIAlertControllerStyleAlert);
    ASSERT_EQ([[shown actions] count], 2u);
    EXPECT_EQ([[[shown actions] objectAtIndex:0] style], UIAlertActionStyleCancel);
    EXPECT_TRUE([[[[shown actions] objectAtIndex:0] title] isEqual:@"No"]);
    EXPECT_EQ([[[shown actions] objectAtIndex:1] style], UIAlertActionStyleDefault);
    EXPECT_TRUE([[[[shown actions] objectAtIndex:1] title] isEqual:@"Yes"]);
    EXPECT_TRUE(pressAlertButton(1)) << "it needs no delegate";
}

TEST_F(AnAlertView, WithAnEmptyTitleHasNone)
{
    alert("Really?")->show();
    EXPECT_EQ([currentAlert() title], nil);
}

TEST_F(AnAlertView, TellsItsDelegateTheIndexOfTheButton)
{
    for (const NSInteger button : { 0, 1, 2 }) {
        alert("Really?")->show();
        EXPECT_TRUE(pressAlertButton(button));
    }
    EXPECT_THAT(answers, ElementsAre("0", "1", "2"));
}

TEST_F(AnAlertView, IsPresentedOverTheWindowOfItsDelegate)
{
    alert("Really?")->show();
    EXPECT_EQ([root presentedViewController], currentAlert());
    EXPECT_EQ([keyRoot presentedViewController], nil);
}

TEST_F(AnAlertView, IsPresentedOverTheTopmostController)
{
    ::UIViewController* sheet = [[[::UIViewController alloc] init] autorelease];
    ::UIViewController* second = [[[::UIViewController alloc] init] autorelease];
    [root presentViewController:sheet animated:NO completion:nil];
    [sheet presentViewController:second animated:NO completion:nil];
    alert("Really?")->show();
    EXPECT_EQ([second presentedViewController], currentAlert());
    EXPECT_NE(currentAlert(), nil);
}

TEST_F(AnAlertView, OfADelegateInNoWindowIsPresentedInTheKeyWindow)
{
    [[nativeAsking() view] removeFromSuperview];
    alert("Really?")->show();
    EXPECT_EQ([keyRoot presentedViewController], currentAlert());
    EXPECT_NE(currentAlert(), nil);
}

TEST_F(AnAlertView, IsLeftOutWithoutAWindow)
{
    [[nativeAsking() view] removeFromSuperview];
    [keyWindow setRootViewController:nil];
    alert("First")->show();
    EXPECT_EQ(currentAlert(), nil);
    [keyWindow setRootViewController:keyRoot];
    alert("Second")->show();
    EXPECT_TRUE([[currentAlert() message] isEqual:@"Second"]);
}

TEST_F(AnAlertView, WaitsUntilTheOnesBeforeAreAnswered)
{
    for (const auto* message : { "First", "Second", "Third" })
        alert(message)->show();
    EXPECT_THAT(doubles::takeTrace(), ElementsAre("alert First (No, Yes, Perhaps)"));
    pressAlertButton(0);
    EXPECT_THAT(doubles::takeTrace(), ElementsAre("alert Second (No, Yes, Perhaps)"));
    pressAlertButton(1);
    EXPECT_THAT(doubles::takeTrace(), ElementsAre("alert Third (No, Yes, Perhaps)"));
    pressAlertButton(2);
    EXPECT_THAT(doubles::takeTrace(), IsEmpty());
    EXPECT_THAT(answers, ElementsAre("0", "1", "2"));
}

TEST_F(AnAlertView, ThatTheAppTookAwayDoesNotKeepTheNextOneWaiting)
{
    alert("First")->show();
    [root dismissViewControllerAnimated:NO completion:nil];
    alert("Second")->show();
    EXPECT_TRUE([[currentAlert() message] isEqual:@"Second"]);
}

TEST_F(AnAlertView, IsRetainedUntilItIsAnswered)
{
    const auto shown = alert("Really?");
    NSAutoreleasePool* turn = [[NSAutoreleasePool alloc] init];
    shown->show();
    [turn release];
    EXPECT_GT(shown->retainCount(), 1u);
    turn = [[NSAutoreleasePool alloc] init];
    pressAlertButton(0);
    [turn release];
    EXPECT_EQ(shown->retainCount(), 1u);
}

TEST_F(AnAlertView, AnsweredAfterItsDelegateIsGoneDoesNothing)
{
    alert("Really?")->show();
    closeAsking();
    EXPECT_TRUE(pressAlertButton(1));
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnAlertView, ThatIsGoneLeavesItsDelegateAlone)
{
    alert("Never shown");
    closeAsking();
    EXPECT_THAT(answers, IsEmpty());
}

} // namespace

} // namespace brimsound::tests
