#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"
#include "tests/unit/ios/doubles/UIKit/Geometry.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// Counts how often its view is loaded.
@interface LoadingController : UIViewController {
@public
    int loads;
    int loadsWhenLoaded;
}
@end

@implementation LoadingController

- (void)loadView
{
    ++loads;
    [super loadView];
}

- (void)viewDidLoad
{
    [super viewDidLoad];
    loadsWhenLoaded = loads;
}

@end

namespace {

using brimsound::doubles::currentAlert;
using brimsound::doubles::pressAlertButton;
using brimsound::doubles::takeTrace;
using testing::ElementsAre;
using testing::IsEmpty;

class AController : public testing::Test {
protected:
    AController() { [window makeKeyAndVisible]; }
    ~AController() override
    {
        [controller release];
        [window release];
        [pool release];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    UIWindow* window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 320, 480)];
    LoadingController* controller = [[LoadingController alloc] init];
};

TEST_F(AController, LoadsItsViewAtFirstUse)
{
    EXPECT_FALSE([controller isViewLoaded]);
    UIView* view = [controller view];
    EXPECT_EQ([controller view], view);
    EXPECT_EQ(controller->loads, 1);
    [controller setView:nil];
    EXPECT_FALSE([controller isViewLoaded]);
    EXPECT_NE([controller view], nil);
    EXPECT_EQ(controller->loads, 2);
}

TEST_F(AController, AtTheRootFillsItsWindow)
{
    [window setRootViewController:controller];
    [window layoutIfNeeded];
    EXPECT_EQ([[controller view] superview], window);
    EXPECT_EQ([[controller view] frame], CGRectMake(0, 0, 320, 480));
    [window setFrame:CGRectMake(0, 0, 768, 1024)];
    [window layoutIfNeeded];
    EXPECT_EQ([[controller view] frame], CGRectMake(0, 0, 768, 1024));
    [window setRootViewController:nil];
    EXPECT_EQ([[controller view] superview], nil);
    EXPECT_EQ([controller retainCount], 1u);
}

TEST_F(AController, RetainsAPresentedControllerUntilItIsDismissed)
{
    UIViewController* sheet = [[UIViewController alloc] init];
    [controller presentViewController:sheet animated:YES completion:nil];
    EXPECT_EQ([controller presentedViewController], sheet);
    EXPECT_EQ([sheet retainCount], 2u);
    EXPECT_EQ([[window subviews] lastObject], [sheet view]);
    [controller presentViewController:[[[UIViewController alloc] init] autorelease]
                             animated:NO
                           completion:nil];
    EXPECT_EQ([controller presentedViewController], sheet) << "one at a time";
    [sheet dismissViewControllerAnimated:YES completion:nil];
    EXPECT_EQ([controller presentedViewController], nil);
    EXPECT_EQ([[sheet view] superview], nil);
    EXPECT_EQ([sheet retainCount], 1u);
    [sheet release];
}

TEST_F(AController, DismissesItsPresentedControllerWhenItIsDestroyed)
{
    UIViewController* sheet = [[UIViewController alloc] init];
    [controller presentViewController:sheet animated:NO completion:nil];
    [controller release];
    controller = nil;
    EXPECT_EQ([[sheet view] superview], nil);
    EXPECT_EQ([sheet retainCount], 1u);
    [sheet dismissViewControllerAnimated:NO completion:nil];
    [sheet release];
}

TEST_F(AController, LoadsItsViewBeforeItSaysSo)
{
    EXPECT_EQ(controller->loadsWhenLoaded, 0);
    [controller view];
    EXPECT_EQ(controller->loadsWhenLoaded, 1);
}

TEST_F(AController, CallsTheCompletionWhenTheSheetHasArrived)
{
    UIViewController* sheet = [[[UIViewController alloc] init] autorelease];
    std::string calls;
    auto* const called = &calls;
    [controller presentViewController:sheet animated:YES completion:^{ *called += "presented "; }];
    EXPECT_EQ(calls, "");
    brimsound::doubles::advanceClock(1);
    EXPECT_EQ(calls, "presented ");
    [controller dismissViewControllerAnimated:NO completion:^{ *called += "dismissed"; }];
    EXPECT_EQ(calls, "presented dismissed");
}

TEST_F(AController, IsPresentedOnlyOnce)
{
    UIViewController* sheet = [[[UIViewController alloc] init] autorelease];
    [controller presentViewController:sheet animated:NO completion:nil];
    EXPECT_EQ([sheet presentingViewController], controller);
    NSString* refusal = nil;
    @try {
        UIViewController* other = [[[UIViewController alloc] init] autorelease];
        [other presentViewController:sheet animated:NO completion:nil];
    } @catch (NSException* exception) {
        refusal = [exception name];
    }
    EXPECT_TRUE([refusal isEqualToString:NSInvalidArgumentException]);
}

class AnAlert : public testing::Test {
protected:
    AnAlert() { takeTrace(); }
    ~AnAlert() override
    {
        brimsound::doubles::resetUIKit();
        [pool release];
    }

    /// Its handlers write down the titles of their actions.
    UIAlertController* alert(NSString* message)
    {
        UIAlertController* made = [UIAlertController alertControllerWithTitle:nil
                                                                      message:message
                                                               preferredStyle:UIAlertControllerStyleAlert];
        auto* const clicks = &clicked;
        for (NSString *title in [NSArray arrayWithObjects:@"No", @"Yes", @"Perhaps", nil]) {
            const bool cancels = [title isEqual:@"No"];
            const auto style = cancels ? UIAlertActionStyleCancel : UIAlertActionStyleDefault;
            [made addAction:[UIAlertAction actionWithTitle:title
                                                     style:style
                                                   handler:^(UIAlertAction* action) {
                                                       clicks->push_back([[action title] UTF8String]);
                                                   }]];
        }
        return made;
    }

    void present(UIAlertController* shown)
    {
        [controller presentViewController:shown animated:YES completion:nil];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    UIViewController* controller = [[[UIViewController alloc] init] autorelease];
    std::vector<std::string> clicked;
};

TEST_F(AnAlert, IsShownUntilAButtonIsPressed)
{
    EXPECT_FALSE(pressAlertButton(0));
    UIAlertController* shown = alert(@"Really?");
    present(shown);
    EXPECT_EQ(currentAlert(), shown);
    EXPECT_THAT(takeTrace(), ElementsAre("alert Really? (No, Yes, Perhaps)"));
    EXPECT_FALSE(pressAlertButton(3));
    EXPECT_TRUE(pressAlertButton(2));
    EXPECT_EQ(currentAlert(), nil);
    EXPECT_EQ([shown presentingViewController], nil);
    EXPECT_THAT(clicked, ElementsAre("Perhaps"));
}

TEST_F(AnAlert, CanBeFollowedByAnotherOneInItsHandler)
{
    UIAlertController* first = alert(@"First");
    UIAlertController* second = alert(@"Second");
    UIViewController* const presenter = controller;
    [first addAction:[UIAlertAction actionWithTitle:@"Next"
                                              style:UIAlertActionStyleDefault
                                            handler:^(UIAlertAction*) {
                                                [presenter presentViewController:second
                                                                        animated:YES
                                                                      completion:nil];
                                            }]];
    present(first);
    pressAlertButton(3);
    EXPECT_EQ(currentAlert(), second);
}

TEST_F(AnAlert, TakesOneActionThatCancels)
{
    UIAlertController* shown = alert(@"Really?");
    NSString* refusal = nil;
    @try {
        [shown addAction:[UIAlertAction actionWithTitle:@"Never" style:UIAlertActionStyleCancel handler:nil]];
    } @catch (NSException* exception) {
        refusal = [exception name];
    }
    EXPECT_TRUE([refusal isEqualToString:NSInternalInconsistencyException]);
}

TEST_F(AnAlert, DisappearsWithoutAnAnswerWhenItIsDismissed)
{
    present(alert(@"Really?"));
    [controller dismissViewControllerAnimated:YES completion:nil];
    EXPECT_EQ(currentAlert(), nil);
    EXPECT_THAT(clicked, IsEmpty());
}

TEST_F(AnAlert, IsGoneAfterAReset)
{
    present(alert(@"First"));
    takeTrace();
    brimsound::doubles::resetUIKit();
    EXPECT_EQ(currentAlert(), nil);
    EXPECT_THAT(takeTrace(), IsEmpty());
    EXPECT_THAT(clicked, IsEmpty());
}

} // namespace
