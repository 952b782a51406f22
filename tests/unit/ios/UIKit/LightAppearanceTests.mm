#include "platform/ios/UIKit/LightAppearance.h"

#include "platform/ios/UIKit/NativeView.h"
#include "tests/unit/settings/Pane.h"
#include "tests/unit/settings/PresetPane.h"

#import <Preferences/PSListController.h>

#include <gmock/gmock.h>

/// A view as before iOS 13.
@interface OldView : UIView {
@public
    BOOL wasAsked;
}
@end

@implementation OldView

- (BOOL)respondsToSelector:(SEL)selector
{
    return !sel_isEqual(selector, @selector(setOverrideUserInterfaceStyle:)) &&
        [super respondsToSelector:selector];
}

- (void)setOverrideUserInterfaceStyle:(NSInteger)style
{
    wasAsked = YES;
}

@end

namespace brimsound::tests {

namespace {

using ios::lightStyle;
using ios::nativeView;

TEST(ALightView, StaysLightInADarkApp)
{
    ::UIView* view = [[::UIView alloc] init];
    EXPECT_EQ([view overrideUserInterfaceStyle], 0);
    ios::keepLight(view);
    EXPECT_EQ([view overrideUserInterfaceStyle], lightStyle);
    [view release];
}

TEST(ALightView, IsLeftAsItIsBeforeThereWasADarkAppearance)
{
    OldView* view = [[OldView alloc] init];
    ios::keepLight(view);
    EXPECT_FALSE(view->wasAsked);
    [view release];
}

TEST(AnOpenPane, IsLight)
{
    TestPlatform platform;
    const auto controller = openController();
    ::PSListController* native = ios::nativeOf(*controller);
    EXPECT_EQ([[native view] overrideUserInterfaceStyle], lightStyle);
}

TEST(ThePresetPanel, IsLight)
{
    TestPlatform platform;
    PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ([nativeView(pane.controller().saver()->view()) overrideUserInterfaceStyle], lightStyle);
}

} // namespace

} // namespace brimsound::tests
