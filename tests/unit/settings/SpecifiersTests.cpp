#include "platform/Foundation/NSBundle.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace brimsound::tests {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string text(const PSSpecifier& specifier, std::string_view key)
{
    const auto property = specifier.propertyForKey(key);
    return property.asString() ? *property.asString() : std::string();
}

bool isGroup(const PSSpecifier& specifier)
{
    return text(specifier, "cell") == "PSGroupCell";
}

class ThePane : public testing::Test {
protected:
    ThePane() { platform.takeTrace(); }

    /// The rows of each group.
    std::vector<std::vector<PSSpecifier*>> sections()
    {
        std::vector<std::vector<PSSpecifier*>> sections;
        for (const auto& specifier : controller->specifiers()) {
            if (isGroup(*specifier))
                sections.emplace_back();
            else
                sections.back().push_back(specifier.get());
        }
        return sections;
    }

    TestPlatform platform;
    RetainPtr<BrimsoundSettingsListController> controller = openController();
};

TEST_F(ThePane, StartsWithASwitchAndHasTheSlidersAsTheOnlyRowOfItsThirdGroup)
{
    ASSERT_TRUE(isGroup(*controller->specifiers().front()));
    ASSERT_GE(sections().size(), 3u);
    EXPECT_EQ(text(*sections()[0].at(0), "key"), "ENABLED");
    EXPECT_EQ(text(*sections()[0].at(0), "cell"), "PSSwitchCell");
    EXPECT_EQ(sections()[2].size(), 1u);
}

TEST_F(ThePane, HasASwitchWithItsAccessorsForEachSetting)
{
    std::map<std::string, std::vector<std::string>> accessors;
    std::map<std::string, PropertyList> defaults;
    for (const auto& specifier : controller->specifiers()) {
        if (text(*specifier, "cell") != "PSSwitchCell")
            continue;
        const auto key = text(*specifier, "key");
        accessors[key] = { text(*specifier, "get"), text(*specifier, "set") };
        defaults[key] = specifier->propertyForKey("default");
    }
    EXPECT_EQ(accessors,
        (std::map<std::string, std::vector<std::string>> {
            { "ENABLED", { "enabled", "setEnabled:" } },
            { "ENABLED_CC", { "enabledCC", "setEnabledCC:" } },
            { "AUTO_PREAMP", { "autoPreamp", "setAutoPreamp:" } },
            { "FILTER_DISABLED", { "filterDisabled", "setFilterDisabled:" } },
            { "CHECKING_DISABLED", { "checkingDisabled", "setCheckingDisabled:" } },
        }));
    EXPECT_EQ(defaults,
        (std::map<std::string, PropertyList> { { "ENABLED", true }, { "ENABLED_CC", true },
            { "AUTO_PREAMP", true }, { "FILTER_DISABLED", false }, { "CHECKING_DISABLED", false } }));
}

TEST_F(ThePane, HasAButtonForEachAction)
{
    std::vector<std::string> actions;
    for (const auto& specifier : controller->specifiers()) {
        if (const auto action = text(*specifier, "action"); !action.empty())
            actions.push_back(action);
    }
    EXPECT_THAT(actions,
        UnorderedElementsAre(
            "showPresets:", "reportIssue:", "respring:", "visitWebsite:", "visitTwitter:", "showActivator:"));
}

TEST_F(ThePane, HasEveryTextInTheStringsTable)
{
    const auto bundle = NSBundle::bundleForClass("BrimsoundSettingsListController");
    const auto plist = readPropertyListFile(bundle.pathForResource("BrimsoundSettings", "plist").value());
    ASSERT_TRUE(plist && plist->asDictionary());
    std::vector<std::string> keys { "PRE", "SAVE", "CANCEL", "NAME",
        *plist->asDictionary()->find("title")->asString() };
    for (const auto& item : *plist->asDictionary()->find("items")->asArray()) {
        for (const auto* key : { "label", "footerText" }) {
            if (const auto* value = item.asDictionary()->find(key))
                keys.push_back(*value->asString());
        }
    }
    for (const auto& key : keys)
        EXPECT_NE(bundle.localizedStringForKey(key, "missing", "BrimsoundSettings"), "missing") << key;
}

TEST_F(ThePane, IsTheTargetOfAllItsRows)
{
    for (const auto& specifier : controller->specifiers())
        EXPECT_EQ(&specifier->target(), controller.get());
}

TEST_F(ThePane, BuildsACellForEveryRow)
{
    auto& table = controller->table();
    const auto rows = sections();
    ASSERT_EQ(controller->numberOfSectionsInTableView(table), rows.size());
    for (std::size_t section = 0; section < rows.size(); ++section) {
        ASSERT_EQ(controller->tableViewNumberOfRowsInSection(table, section), rows[section].size());
        for (std::size_t row = 0; row < rows[section].size(); ++row)
            EXPECT_TRUE(controller->tableViewCellForRowAtIndexPath(table, { section, row }));
    }
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

} // namespace
} // namespace brimsound::tests
