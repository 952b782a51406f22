// The resources that the pane is shipped with.
#include "platform/Foundation/NSBundle.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Preferences/SpecifierCell.h"

#include <gmock/gmock.h>

#include <map>

namespace brimsound::tests {

namespace {

using desktop::isOfType;
using desktop::stringProperty;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Loader : public PSListController {
public:
    Loader()
        : PSListController("BrimsoundSettingsListController")
    {
    }

    const Specifiers& specifiers() override
    {
        if (!_specifiers)
            _specifiers = loadSpecifiersFromPlistNameTarget("BrimsoundSettings", *this);
        return *_specifiers;
    }
};

class ThePanesResources : public testing::Test {
protected:
    std::vector<PSSpecifier*> ofType(std::string_view cellType) const
    {
        std::vector<PSSpecifier*> found;
        for (const auto& specifier : loader->specifiers()) {
            if (isOfType(*specifier, cellType))
                found.push_back(specifier.get());
        }
        return found;
    }

    /// The row at that place.
    PSSpecifier* row(std::size_t section, std::size_t row) const
    {
        std::size_t groups = 0;
        std::size_t rows = 0;
        for (const auto& specifier : loader->specifiers()) {
            if (isOfType(*specifier, desktop::groupCellType)) {
                ++groups;
                rows = 0;
            } else if (groups == section + 1 && rows++ == row) {
                return specifier.get();
            }
        }
        return nullptr;
    }

    const RetainPtr<Loader> loader = make<Loader>();
};

TEST_F(ThePanesResources, BeginWithAGroup)
{
    ASSERT_FALSE(loader->specifiers().empty());
    EXPECT_TRUE(isOfType(*loader->specifiers().front(), desktop::groupCellType));
}

TEST_F(ThePanesResources, HaveASwitchAtTheTop)
{
    ASSERT_NE(row(0, 0), nullptr);
    EXPECT_TRUE(isOfType(*row(0, 0), desktop::switchCellType));
}

TEST_F(ThePanesResources, HaveThePlaceOfTheSlidersAloneInTheThirdSection)
{
    ASSERT_NE(row(2, 0), nullptr);
    EXPECT_EQ(stringProperty(*row(2, 0), "id"), "SLIDERS");
    EXPECT_TRUE(isOfType(*row(2, 0), "PSStaticTextCell"));
    EXPECT_EQ(loader->tableViewNumberOfRowsInSection(loader->table(), 2), 1u);
}

TEST_F(ThePanesResources, HaveASwitchForEveryPreference)
{
    std::map<std::string, std::vector<std::string>> selectors;
    for (const auto* specifier : ofType(desktop::switchCellType)) {
        selectors[stringProperty(*specifier, "key")]
            = { stringProperty(*specifier, "get"), stringProperty(*specifier, "set") };
    }
    using Selectors = std::vector<std::string>;
    EXPECT_THAT(selectors,
        UnorderedElementsAre(std::pair("ENABLED", Selectors { "enabled", "setEnabled:" }),
            std::pair("ENABLED_CC", Selectors { "enabledCC", "setEnabledCC:" }),
            std::pair("AUTO_PREAMP", Selectors { "autoPreamp", "setAutoPreamp:" }),
            std::pair("FILTER_DISABLED", Selectors { "filterDisabled", "setFilterDisabled:" }),
            std::pair("CHECKING_DISABLED", Selectors { "checkingDisabled", "setCheckingDisabled:" })));
}

TEST_F(ThePanesResources, HaveAButtonForEveryAction)
{
    std::vector<std::string> actions;
    for (const auto* specifier : ofType(desktop::buttonCellType))
        actions.push_back(stringProperty(*specifier, "action"));
    EXPECT_THAT(actions,
        UnorderedElementsAre(
            "showPresets:", "reportIssue:", "respring:", "visitWebsite:", "visitTwitter:", "showActivator:"));
}

TEST_F(ThePanesResources, HaveALabelOnEverythingThatCanBeTouched)
{
    for (const auto* cellType : { desktop::switchCellType, desktop::buttonCellType, desktop::linkCellType }) {
        for (const auto* specifier : ofType(cellType))
            EXPECT_NE(specifier->name(), "") << stringProperty(*specifier, "key");
    }
}

TEST_F(ThePanesResources, HaveEveryLabelAndFooterInTheStringsTable)
{
    const auto bundle = NSBundle::bundleForClass("BrimsoundSettingsListController");
    const auto plistPath = bundle.pathForResource("BrimsoundSettings", "plist");
    const auto tablePath = bundle.pathForResource("BrimsoundSettings", "strings");
    ASSERT_TRUE(plistPath && tablePath);
    const auto plist = readPropertyListFile(*plistPath);
    const auto table = readPropertyListFile(*tablePath);
    ASSERT_TRUE(plist && plist->asDictionary() && table && table->asDictionary());
    const auto& texts = *table->asDictionary();

    std::vector<std::string> missing;
    std::size_t found = 0;
    const auto* items = plist->asDictionary()->find("items");
    ASSERT_TRUE(items && items->asArray());
    for (const auto& item : *items->asArray()) {
        for (const auto* key : { "label", "footerText" }) {
            const auto* text = item.asDictionary()->find(key);
            if (!text)
                continue;
            ++found;
            if (!texts.find(*text->asString()))
                missing.push_back(*text->asString());
        }
    }
    EXPECT_THAT(missing, IsEmpty());
    EXPECT_GT(found, 10u);
    for (const auto* key : { "Brimsound", "PRE", "SAVE", "CANCEL" })
        EXPECT_TRUE(texts.find(key)) << key;
}

} // namespace

} // namespace brimsound::tests
