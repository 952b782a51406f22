#include "platform/Foundation/PropertyList.h"

#include <gmock/gmock.h>

namespace brimsound {

using testing::ElementsAre;

namespace {

std::vector<std::string> keysOf(const PropertyList::Dictionary& dictionary)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : dictionary)
        keys.push_back(key);
    return keys;
}

PropertyList::Dictionary longDictionary(int size)
{
    PropertyList::Dictionary dictionary;
    for (int i = 0; i < size; ++i)
        dictionary.set(std::to_string(i), i);
    return dictionary;
}

} // namespace

TEST(ADictionary, KeepsTheOrderInWhichItsKeysWereSet)
{
    PropertyList::Dictionary dictionary { { "b", 1 }, { "a", 2 }, { "c", 3 } };
    dictionary.set("a", 4);
    dictionary.set("aa", 5);
    EXPECT_THAT(keysOf(dictionary), ElementsAre("b", "a", "c", "aa"));
    EXPECT_EQ(*dictionary.find("a"), PropertyList(4));
}

TEST(ADictionary, DoesNotFindARemovedKey)
{
    PropertyList::Dictionary dictionary { { "a", 1 }, { "b", 2 }, { "c", 3 } };
    dictionary.remove("b");
    dictionary.remove("nothing");
    EXPECT_THAT(keysOf(dictionary), ElementsAre("a", "c"));
    EXPECT_EQ(dictionary.find("b"), nullptr);

    dictionary.set("b", 4);
    EXPECT_THAT(keysOf(dictionary), ElementsAre("a", "c", "b"));
}

TEST(ADictionary, EqualsOneWithTheSameEntriesInAnotherOrder)
{
    const PropertyList::Dictionary dictionary { { "a", 1 }, { "b", 2 } };
    EXPECT_EQ(dictionary, (PropertyList::Dictionary { { "b", 2 }, { "a", 1 } }));
    EXPECT_FALSE(dictionary == (PropertyList::Dictionary { { "a", 1 }, { "b", 3 } }));
    EXPECT_FALSE(dictionary == (PropertyList::Dictionary { { "a", 1 }, { "c", 2 } }));
    EXPECT_FALSE(dictionary == (PropertyList::Dictionary { { "a", 1 } }));
}

TEST(ADictionary, ReturnsAFloatForAKeyAndZeroWithoutOne)
{
    const PropertyList::Dictionary dictionary { { "PREAMP", "3.5" } };
    EXPECT_EQ(floatForKey(dictionary, "PREAMP"), 3.5f);
    EXPECT_EQ(floatForKey(dictionary, "TREBLE"), 0);
}

TEST(ADictionary, ReturnsAnArrayADictionaryOrAStringForAKeyThatHasOne)
{
    PropertyList::Dictionary dictionary { { "array", PropertyList::Array { 1 } },
        { "dictionary", PropertyList::Dictionary { { "a", 1 } } }, { "string", "text" } };
    const auto& constant = dictionary;

    ASSERT_NE(arrayForKey(constant, "array"), nullptr);
    ASSERT_NE(dictionaryForKey(constant, "dictionary"), nullptr);
    ASSERT_NE(stringForKey(constant, "string"), nullptr);
    EXPECT_EQ(*stringForKey(constant, "string"), "text");

    arrayForKey(dictionary, "array")->front() = 2;
    dictionaryForKey(dictionary, "dictionary")->set("a", 2);
    EXPECT_EQ(arrayForKey(constant, "array")->front(), PropertyList(2));
    EXPECT_EQ(*dictionaryForKey(constant, "dictionary")->find("a"), PropertyList(2));
}

TEST(ADictionary, ReturnsNothingForAKeyThatIsMissingOrHoldsAnotherType)
{
    PropertyList::Dictionary dictionary { { "number", 1 } };
    const auto& constant = dictionary;
    for (const auto* key : { "number", "missing" }) {
        EXPECT_EQ(arrayForKey(dictionary, key), nullptr);
        EXPECT_EQ(arrayForKey(constant, key), nullptr);
        EXPECT_EQ(dictionaryForKey(dictionary, key), nullptr);
        EXPECT_EQ(dictionaryForKey(constant, key), nullptr);
        EXPECT_EQ(stringForKey(constant, key), nullptr);
    }
}

TEST(ADictionary, KeepsOfRepeatedKeysTheLastValueInTheFirstPlace)
{
    using Entries = std::vector<PropertyListDictionary::Entry>;
    const PropertyListDictionary dictionary(Entries { { "a", 1 }, { "b", 2 }, { "a", 3 }, { "a", 4 } });
    EXPECT_THAT(keysOf(dictionary), ElementsAre("a", "b"));
    EXPECT_EQ(*dictionary.find("a"), PropertyList(4));

    Entries entries;
    for (int i = 0; i < 300; ++i)
        entries.push_back({ std::to_string(i % 100), i });
    const PropertyListDictionary longer(std::move(entries));
    ASSERT_EQ(longer.size(), 100u);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(longer.begin()[i].key, std::to_string(i));
        EXPECT_EQ(*longer.find(std::to_string(i)), PropertyList(200 + i));
    }
}

TEST(ADictionary, FindsItsKeysAfterGrowingAndShrinking)
{
    PropertyList::Dictionary dictionary;
    for (int i = 0; i < 40; ++i) {
        dictionary.set(std::to_string(39 - i), i);
        for (int j = 0; j <= i; ++j)
            ASSERT_EQ(dictionary.find(std::to_string(39 - j))->integerValue(), j);
        ASSERT_EQ(dictionary.find("none"), nullptr);
    }
    for (int i = 0; i < 40; ++i) {
        dictionary.remove(std::to_string(i));
        ASSERT_EQ(dictionary.find(std::to_string(i)), nullptr);
        ASSERT_EQ(dictionary.size(), static_cast<std::size_t>(39 - i));
    }
}

TEST(ALongDictionary, FindsItsKeysAfterEveryChange)
{
    constexpr int size = 1000;
    auto dictionary = longDictionary(size);
    ASSERT_NE(dictionary.find("999"), nullptr);

    dictionary.remove("500");
    dictionary.set("more", "more");
    EXPECT_EQ(dictionary.find("500"), nullptr);
    EXPECT_EQ(*dictionary.find("501"), PropertyList(501));
    EXPECT_EQ(*dictionary.find("more"), PropertyList("more"));

    const auto copy = dictionary;
    const auto moved = std::move(dictionary);
    EXPECT_EQ(*copy.find("999"), PropertyList(999));
    EXPECT_EQ(*moved.find("999"), PropertyList(999));
    EXPECT_EQ(copy, moved);
}

TEST(ALongDictionary, IsNotSearchedLinearly)
{
    // A linear search would compare five billion keys.
    constexpr int size = 100'000;
    const auto dictionary = longDictionary(size);
    for (int i = 0; i < size; ++i)
        ASSERT_EQ(dictionary.find(std::to_string(i))->integerValue(), i);
}

} // namespace brimsound
