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
}
@end

@implementation LoadingController

- (void)loadView
{
    ++loads;
    [super loadView];
}

@end

/// Records the delegate calls of alerts.
@interface AlertRecorder : NSObject <UIAlertViewDelegate> {
@public
    std::vector<std::string>* clicks;
}
@end

@implementation AlertRecorder

- (instancetype)init
{
    self = [super init];
    clicks = new std::vector<std::string>;
    return self;
}

- (void)dealloc
{
    delete clicks;
    [super dealloc];
}

- (void)alertView:(UIAlertView*)alert clickedButtonAtIndex:(NSInteger)buttonIndex
{
    clicks->push_back([[alert buttonTitleAtIndex:buttonIndex] UTF8String]);
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

class AnAlert : public testing::Test {
protected:
    AnAlert() { takeTrace(); }
    ~AnAlert() override
    {
        brimsound::doubles::resetUIKit();
        [recorder release];
        [pool release];
    }

    UIAlertView* alert(NSString* message)
    {
        UIAlertView* made = [[[UIAlertView alloc] initWithTitle:nil
                                                        message:message
                                                       delegate:recorder
                                              cancelButtonTitle:@"No"
                                              otherButtonTitles:@"Yes", @"Perhaps", nil] autorelease];
        return made;
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    AlertRecorder* recorder = [[AlertRecorder alloc] init];
};

TEST_F(AnAlert, IsShownUntilAButtonIsPressed)
{
    EXPECT_FALSE(pressAlertButton(0));
    UIAlertView* shown = alert(@"Really?");
    EXPECT_EQ([shown addButtonWithTitle:@"Later"], 3);
    [shown show];
    EXPECT_TRUE([shown isVisible]);
    EXPECT_THAT(takeTrace(), ElementsAre("alert Really? (No, Yes, Perhaps, Later)"));
    EXPECT_FALSE(pressAlertButton(4));
    EXPECT_TRUE(pressAlertButton(2));
    EXPECT_FALSE([shown isVisible]);
    EXPECT_THAT(*recorder->clicks, ElementsAre("Perhaps"));
}

TEST_F(AnAlert, IsRetainedWhileItIsShown)
{
    UIAlertView* shown = [alert(@"Held") retain];
    const auto before = [shown retainCount];
    [shown show];
    EXPECT_EQ([shown retainCount], before + 1);
    pressAlertButton(0);
    EXPECT_EQ([shown retainCount], before);
    [shown release];
}

TEST_F(AnAlert, IsGoneAfterAReset)
{
    [alert(@"First") show];
    [alert(@"Second") show];
    takeTrace();
    brimsound::doubles::resetUIKit();
    EXPECT_EQ(currentAlert(), nil);
    EXPECT_THAT(takeTrace(), IsEmpty());
    EXPECT_THAT(*recorder->clicks, IsEmpty());
}

} // namespace
