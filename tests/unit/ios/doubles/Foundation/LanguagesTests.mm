#include "tests/doubles/Foundation/Languages.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

namespace {

TEST(TheLanguages, AreThoseOfTheUser)
{
    EXPECT_TRUE([[NSLocale preferredLanguages] isEqual:[NSArray arrayWithObject:@"en"]]);
    brimsound::doubles::setPreferredLanguages({ "fr-CA", "de" });
    NSArray* const chosen = [NSArray arrayWithObjects:@"fr-CA", @"de", nil];
    EXPECT_TRUE([[NSLocale preferredLanguages] isEqual:chosen]);
    brimsound::doubles::setPreferredLanguages({});
    EXPECT_EQ([[NSLocale preferredLanguages] count], 0u);
    brimsound::doubles::setPreferredLanguages({ "en" });
}

} // namespace
