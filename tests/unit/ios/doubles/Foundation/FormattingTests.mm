#import <Foundation/Foundation.h>

#include <clocale>

#include <gtest/gtest.h>

namespace {

TEST(AFormattedNumber, HasADecimalPointInEveryLanguage)
{
    // The library applies the locale only from its second number on.
    [NSString stringWithFormat:@"%.1f", 0.5];
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
    NSString* text = [NSString stringWithFormat:@"%.1f %@", -3.5, @"dB"];
    std::setlocale(LC_ALL, "C");
    EXPECT_STREQ([text UTF8String], "-3.5 dB");
}

} // namespace
