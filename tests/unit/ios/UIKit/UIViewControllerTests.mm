#include "platform/UIKit/UIViewController.h"

#include "tests/doubles/Doubles.h"

#include <gtest/gtest.h>

#import <Foundation/Foundation.h>

namespace brimsound::tests {

namespace {

class APresentation : public testing::Test {
protected:
    APresentation() { doubles::resetUIKit(); }
    ~APresentation() override { [pool release]; }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const RetainPtr<UIViewController> controller = make<UIViewController>();
    const RetainPtr<UIViewController> sheet = make<UIViewController>();
    int completions = 0;
};

TEST_F(APresentation, CallsItsCompletionWhenTheSheetHasArrived)
{
    controller->presentViewControllerAnimatedCompletion(sheet, Animated::Yes, [&] { ++completions; });
    EXPECT_EQ(completions, 0);
    doubles::advanceClock(1);
    EXPECT_EQ(completions, 1);
    controller->dismissViewControllerAnimatedCompletion(Animated::Yes, [&] { ++completions; });
    doubles::advanceClock(1);
    EXPECT_EQ(completions, 2);
}

TEST_F(APresentation, NeedsNoCompletion)
{
    controller->presentViewControllerAnimatedCompletion(sheet, Animated::Yes, {});
    doubles::advanceClock(1);
    controller->dismissViewControllerAnimatedCompletion(Animated::Yes, {});
    doubles::advanceClock(1);
    EXPECT_EQ(sheet->retainCount(), 1u);
}

} // namespace

} // namespace brimsound::tests
