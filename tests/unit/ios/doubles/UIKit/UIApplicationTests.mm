#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"

#include <gmock/gmock.h>

namespace {

using brimsound::doubles::takeTrace;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(TheApplication, OpensUrlsWhoseSchemesHavePrograms)
{
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    takeTrace();
    UIApplication* app = [UIApplication sharedApplication];
    NSURL* url = [NSURL URLWithString:@"twitter://user?screen_name=x"];
    EXPECT_FALSE([app canOpenURL:url]);
    EXPECT_THAT(takeTrace(), IsEmpty());
    EXPECT_FALSE([app openURL:url]);
    EXPECT_THAT(takeTrace(), ElementsAre("url twitter://user?screen_name=x"));
    brimsound::doubles::setSchemesThatOpen([NSArray arrayWithObject:@"twitter"]);
    EXPECT_TRUE([app canOpenURL:url]);
    EXPECT_TRUE([app openURL:url]);
    EXPECT_THAT(takeTrace(), ElementsAre("url twitter://user?screen_name=x"));
    brimsound::doubles::resetUIKit();
    EXPECT_FALSE([app canOpenURL:url]);
    [pool release];
}

} // namespace
