#include "tests/doubles/Doubles.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using brimsound::doubles::Components;
using testing::ElementsAre;

Components componentsOf(UIColor* color)
{
    Components all {};
    auto& [red, green, blue, alpha] = all;
    [color getRed:&red green:&green blue:&blue alpha:&alpha];
    return all;
}

class AColor : public testing::Test {
protected:
    ~AColor() override { [pool release]; }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
};

TEST_F(AColor, KeepsComponentsOutsideOfZeroToOneAsFromIOS10On)
{
    EXPECT_THAT(
        componentsOf([UIColor colorWithRed:0.25 green:-1 blue:7 alpha:1.5]), ElementsAre(0.25, -1, 7, 1));
    EXPECT_THAT(componentsOf([UIColor lightGrayColor]), ElementsAre(2.0 / 3, 2.0 / 3, 2.0 / 3, 1));
    EXPECT_THAT(componentsOf([UIColor clearColor]), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(componentsOf([UIColor yellowColor]), ElementsAre(1, 1, 0, 1));
}

TEST_F(AColor, WithANaNHasNoHue)
{
    CGFloat hue = 7;
    EXPECT_FALSE([[UIColor colorWithRed:std::nan("") green:0 blue:0
                                  alpha:1] getHue:&hue saturation:nullptr brightness:nullptr alpha:nullptr]);
    EXPECT_EQ(hue, 7);
}

TEST_F(AColor, IsTheSameObjectInAllViews)
{
    UIView* view = [[UIView alloc] init];
    UIColor* color = [[UIColor colorWithWhite:0.1 alpha:1] retain];
    const auto before = [color retainCount];
    [view setBackgroundColor:color];
    EXPECT_EQ([view backgroundColor], color);
    EXPECT_EQ([color retainCount], before + 1);
    [view setBackgroundColor:nil];
    EXPECT_EQ([color retainCount], before);
    [view setBackgroundColor:color];
    [view release];
    EXPECT_EQ([color retainCount], before);
    [color release];
}

} // namespace
