#include "tests/doubles/Trace.h"

#import <Foundation/Foundation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

TEST(TheLog, KeepsALineUnchanged)
{
    brimsound::doubles::takeTrace();
    NSLog(@"%@ %d%%\n", @"caf\u00e9", 7);
    EXPECT_THAT(brimsound::doubles::takeTrace(), testing::ElementsAre("log café 7%\n"));
}

} // namespace
