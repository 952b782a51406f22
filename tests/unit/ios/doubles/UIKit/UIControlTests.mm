#include "tests/doubles/Doubles.h"
#include "tests/unit/ios/doubles/UIKit/Geometry.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// Records its actions.
@interface ActionRecorder : NSObject <UITextFieldDelegate> {
@public
    std::vector<std::string>* calls;
    id lastSender;
    BOOL returns;
}
@end

@implementation ActionRecorder

- (instancetype)init
{
    self = [super init];
    calls = new std::vector<std::string>;
    return self;
}

- (void)dealloc
{
    delete calls;
    [super dealloc];
}

- (void)changed:(id)sender
{
    lastSender = sender;
    calls->push_back("changed:");
}

- (void)ended
{
    calls->push_back("ended");
}

- (BOOL)textFieldShouldReturn:(UITextField*)field
{
    lastSender = field;
    calls->push_back("return");
    return returns;
}

@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AControl : public testing::Test {
protected:
    AControl() = default;
    ~AControl() override
    {
        [control release];
        [recorder release];
        [pool release];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    ActionRecorder* recorder = [[ActionRecorder alloc] init];
    UIControl* control = [[UISlider alloc] init];
    std::vector<std::string>& calls = *recorder->calls;
};

TEST_F(AControl, SendsTheActionsOfTheEventsThatWereAskedFor)
{
    [control addTarget:recorder
                  action:@selector(changed:)
        forControlEvents:UIControlEventTouchDown | UIControlEventTouchDragInside];
    [control addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventTouchUpInside];
    [control sendActionsForControlEvents:UIControlEventTouchDown];
    EXPECT_THAT(calls, ElementsAre("changed:"));
    EXPECT_EQ(recorder->lastSender, control);
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_THAT(calls, ElementsAre("changed:", "ended"));
    [control sendActionsForControlEvents:UIControlEventTouchCancel];
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(AControl, SendsAnActionOnceThatIsAddedTwice)
{
    [control addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventTouchDown];
    [control addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventTouchCancel];
    [control sendActionsForControlEvents:UIControlEventTouchDown | UIControlEventTouchCancel];
    EXPECT_THAT(calls, ElementsAre("ended"));
    [control sendActionsForControlEvents:UIControlEventTouchDown];
    [control sendActionsForControlEvents:UIControlEventTouchCancel];
    EXPECT_THAT(calls, ElementsAre("ended", "ended", "ended"));
}

TEST_F(AControl, DoesNotRetainItsTarget)
{
    [control addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventTouchDown];
    EXPECT_EQ([recorder retainCount], 1u);
}

TEST_F(AControl, OfASwitchSendsAnActionOnlyForATouch)
{
    UISwitch* button = [[[UISwitch alloc] init] autorelease];
    [button addTarget:recorder action:@selector(changed:) forControlEvents:UIControlEventValueChanged];
    [button setOn:YES animated:NO];
    EXPECT_TRUE([button isOn]);
    EXPECT_THAT(calls, IsEmpty());
    brimsound::doubles::flip(button);
    EXPECT_FALSE([button isOn]);
    EXPECT_THAT(calls, ElementsAre("changed:"));
    EXPECT_EQ([button bounds], CGRectMake(0, 0, 51, 31));
}

class ATextField : public AControl {
protected:
    ATextField() { [window addSubview:field]; }
    ~ATextField() override
    {
        [field release];
        [window release];
    }

    UIWindow* window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 320, 568)];
    UITextField* field = [[UITextField alloc] init];
};

TEST_F(ATextField, TakesTheKeyboardFromAnotherOne)
{
    UITextField* other = [[[UITextField alloc] init] autorelease];
    EXPECT_FALSE([other becomeFirstResponder]) << "it is in no window";
    [window addSubview:other];
    EXPECT_TRUE([other becomeFirstResponder]);
    [other addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventEditingDidEnd];
    EXPECT_TRUE([field becomeFirstResponder]);
    EXPECT_FALSE([other isFirstResponder]);
    EXPECT_TRUE([field isFirstResponder]);
    EXPECT_THAT(calls, ElementsAre("ended"));
}

TEST_F(ATextField, GivesUpTheKeyboardWhenItsSuperviewIsRemoved)
{
    UIView* holder = [[UIView alloc] init];
    [window addSubview:holder];
    [holder addSubview:field];
    [field becomeFirstResponder];
    [window release];
    window = [[UIWindow alloc] init];
    EXPECT_EQ([holder superview], nil);
    EXPECT_FALSE([field isFirstResponder]);
    [holder release];
}

TEST_F(ATextField, AcceptsTextAndAsksItsDelegateAboutReturn)
{
    [field setDelegate:recorder];
    [field addTarget:recorder action:@selector(ended) forControlEvents:UIControlEventEditingDidEndOnExit];
    brimsound::doubles::type(field, @"Lou");
    brimsound::doubles::type(field, @"d");
    EXPECT_TRUE([[field text] isEqualToString:@"Loud"]);
    EXPECT_TRUE([field isFirstResponder]);
    brimsound::doubles::pressReturn(field);
    EXPECT_THAT(calls, ElementsAre("return"));
    recorder->returns = YES;
    brimsound::doubles::pressReturn(field);
    EXPECT_THAT(calls, ElementsAre("return", "return", "ended"));
}

} // namespace
