#include "tests/doubles/Doubles.h"
#include "tests/unit/ios/doubles/UIKit/Geometry.h"

#import <QuartzCore/QuartzCore.h>

#include <gmock/gmock.h>

#include <limits>

/// Counts calls of its methods.
@interface CountingView : UIView {
@public
    int layouts;
    int framesSet;
}
@end

@implementation CountingView

- (void)setFrame:(CGRect)frame
{
    ++framesSet;
    [super setFrame:frame];
}

- (void)layoutSubviews
{
    ++layouts;
    [super layoutSubviews];
}

@end

namespace {

using brimsound::doubles::advanceClock;
using brimsound::doubles::shownAlpha;
using brimsound::doubles::shownFrame;
using testing::DoubleNear;

/// Views that are released at the end.
class AView : public testing::Test {
protected:
    AView() = default;
    ~AView() override
    {
        [outer release];
        [inner release];
        [pool release];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    CountingView* outer = [[CountingView alloc] initWithFrame:CGRectMake(0, 0, 100, 100)];
    CountingView* inner = [[CountingView alloc] initWithFrame:CGRectMake(10, 10, 20, 20)];
};

TEST_F(AView, RetainsItsSubviewsAndNotItsSuperview)
{
    [outer addSubview:inner];
    EXPECT_EQ([inner retainCount], 2u);
    EXPECT_EQ([outer retainCount], 1u);
    EXPECT_EQ([inner superview], outer);
    [inner removeFromSuperview];
    EXPECT_EQ([inner retainCount], 1u);
    EXPECT_EQ([inner superview], nil);
    EXPECT_EQ([[outer subviews] count], 0u);
}

TEST_F(AView, ReleasesItsSubviewsWhenItIsDestroyed)
{
    UIView* other = [[UIView alloc] init];
    [other addSubview:inner];
    [other release];
    EXPECT_EQ([inner superview], nil);
    EXPECT_EQ([inner retainCount], 1u);
}

TEST_F(AView, IsLaidOutWhenItsSizeChanges)
{
    [outer addSubview:inner];
    [outer layoutIfNeeded];
    const int before = inner->layouts;
    [inner setFrame:CGRectMake(50, 50, 20, 20)];
    [outer layoutIfNeeded];
    EXPECT_EQ(inner->layouts, before) << "it only moved";
    [inner setFrame:CGRectMake(50, 50, 30, 20)];
    EXPECT_EQ(inner->layouts, before) << "not at once";
    [outer layoutIfNeeded];
    EXPECT_EQ(inner->layouts, before + 1);
    [outer layoutIfNeeded];
    EXPECT_EQ(inner->layouts, before + 1);
    EXPECT_EQ(inner->framesSet, 2) << "and not by its initializer";
}

TEST_F(AView, FollowsItsSuperviewsSizeAsFarAsItIsFlexible)
{
    [outer addSubview:inner];
    inner->framesSet = 0;
    [outer setFrame:CGRectMake(0, 0, 150, 170)];
    EXPECT_EQ(inner->framesSet, 0);
    [inner setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    [outer setFrame:CGRectMake(0, 0, 160, 190)];
    EXPECT_TRUE(NSEqualRects([inner frame], CGRectMake(10, 10, 30, 20)));
    [inner setAutoresizingMask:UIViewAutoresizingFlexibleHeight];
    [outer setBounds:CGRectMake(0, 0, 200, 200)];
    EXPECT_TRUE(NSEqualRects([inner frame], CGRectMake(10, 10, 30, 30)));
}

TEST_F(AView, IsSentTheFrameThatItsSuperviewGivesIt)
{
    [outer addSubview:inner];
    [inner setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    inner->framesSet = 0;
    [outer setFrame:CGRectMake(0, 0, 150, 100)];
    EXPECT_EQ(inner->framesSet, 1);
}

TEST_F(AView, RejectsAFrameWithANaN)
{
    NSString* refusal = nil;
    @try {
        [inner setFrame:CGRectMake(0, std::numeric_limits<CGFloat>::quiet_NaN(), 1, 1)];
    } @catch (NSException* exception) {
        refusal = [exception name];
    }
    EXPECT_TRUE([refusal isEqualToString:@"CALayerInvalidGeometry"]);
    EXPECT_EQ([inner frame], CGRectMake(10, 10, 20, 20));
}

TEST_F(AView, KeepsItsLayer)
{
    [[inner layer] setCornerRadius:20];
    EXPECT_EQ([[inner layer] cornerRadius], 20);
}

class AnAnimation : public AView {
protected:
    AnAnimation() { [inner setBackgroundColor:[UIColor blackColor]]; }
    ~AnAnimation() override { brimsound::doubles::resetUIKit(); }

    void moveTo(CGFloat x, double duration, BOOL fromCurrentState = NO)
    {
        [UIView beginAnimations:nil context:nullptr];
        [UIView setAnimationDuration:duration];
        [UIView setAnimationBeginsFromCurrentState:fromCurrentState];
        [inner setFrame:CGRectMake(x, 0, 20, 20)];
        [UIView commitAnimations];
    }
};

TEST_F(AnAnimation, TakesAFifthOfASecondByDefault)
{
    [UIView beginAnimations:nil context:nullptr];
    [inner setAlpha:0];
    [UIView commitAnimations];
    advanceClock(0.19);
    EXPECT_GT(shownAlpha(inner), 0);
    advanceClock(0.02);
    EXPECT_EQ(shownAlpha(inner), 0);
}

TEST_F(AnAnimation, BeginsAtThePreviousTargetOrAtTheCurrentState)
{
    [inner setFrame:CGRectMake(0, 0, 20, 20)];
    moveTo(100, 1);
    advanceClock(0.5);
    moveTo(200, 1, YES);
    EXPECT_THAT(shownFrame(inner).origin.x, DoubleNear(50, 1e-6));
    moveTo(0, 1);
    EXPECT_EQ(shownFrame(inner).origin.x, 200);
}

TEST_F(AnAnimation, BeginsAtThePreviousTargetByDefault)
{
    moveTo(100, 1);
    advanceClock(0.5);
    [UIView beginAnimations:nil context:nullptr];
    [inner setFrame:CGRectMake(200, 0, 20, 20)];
    [UIView commitAnimations];
    EXPECT_EQ(shownFrame(inner).origin.x, 100);
}

} // namespace
