#include "platform/Foundation/NSLog.h"

#include "tests/support/RecordingEffects.h"

#include <gmock/gmock.h>

namespace brimsound {

using testing::ElementsAre;

TEST(LoggingALine, WritesItToStandardErrorOnce)
{
    testing::internal::CaptureStderr();
    NSLog("Brimsound: 100% done");
    NSLog("Brimsound: with a line feed\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Brimsound: 100% done\nBrimsound: with a line feed\n");
}

TEST(LoggingALine, IsAnEffectWithTheTextAsItWas)
{
    tests::RecordingEffects effects;
    testing::internal::CaptureStderr();
    NSLog("Brimsound: text\n");
    testing::internal::GetCapturedStderr();
    EXPECT_THAT(effects.trace(), ElementsAre("log Brimsound: text\n"));
}

} // namespace brimsound
