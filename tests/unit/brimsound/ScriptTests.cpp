#include "desktop/brimsound/Script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string reasonOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const ScriptError& error) {
        return error.what();
    }
    return "no error";
}

TEST(TheWordsOfALine, AreSeparatedByBlanks)
{
    EXPECT_THAT(wordsOf("drag  3\t4.5 "), ElementsAre("drag", "3", "4.5"));
    EXPECT_THAT(wordsOf("state\r"), ElementsAre("state"));
    EXPECT_THAT(wordsOf(""), IsEmpty());
    EXPECT_THAT(wordsOf("   "), IsEmpty());
}

TEST(TheWordsOfALine, EndWhereACommentStarts)
{
    EXPECT_THAT(wordsOf("# nothing"), IsEmpty());
    EXPECT_THAT(wordsOf("touch 3 # the third band"), ElementsAre("touch", "3"));
    EXPECT_THAT(wordsOf("touch 3# the third band"), ElementsAre("touch", "3"));
}

TEST(TheWordsOfALine, HoldBlanksAndCommentSignsInQuotes)
{
    EXPECT_THAT(wordsOf("row \"Full bass/treble\" x"), ElementsAre("row", "Full bass/treble", "x"));
    EXPECT_THAT(wordsOf("type \"#1\""), ElementsAre("type", "#1"));
    EXPECT_THAT(wordsOf("type \"\""), ElementsAre("type", ""));
    EXPECT_THAT(wordsOf(R"(type "a \"quote\" and \\")"), ElementsAre("type", R"(a "quote" and \)"));
}

TEST(TheWordsOfALine, MustHaveTheirQuotesClosed)
{
    EXPECT_EQ(reasonOf([] { wordsOf("row \"Rock"); }), "a quoted text is not closed");
}

TEST(ANumber, IsTakenWholeOrNotAtAll)
{
    EXPECT_EQ(numberFrom("-4.5"), -4.5);
    EXPECT_EQ(numberFrom("+3"), 3);
    EXPECT_EQ(numberFrom("1e2"), 100);
    for (const auto* word : { "", "loud", "4.5dB", "nan", "inf", "1e999", "++3", "+-3", "+" })
        EXPECT_EQ(reasonOf([&] { numberFrom(word); }), "\"" + std::string(word) + "\" is not a number");
}

TEST(AnIndex, HasALimit)
{
    EXPECT_EQ(indexFrom("10", 10), 10u);
    for (const auto* word : { "11", "-1", "", "3.0", "99999999999999999999999" })
        EXPECT_EQ(reasonOf([&] { indexFrom(word, 10); }),
            "\"" + std::string(word) + "\" is not a number from 0 to 10");
}

} // namespace
} // namespace brimsound::desktop
