// The strings table of each language, and the pane and its preset panel with those texts.
#include "desktop/brimsound/PaneHost.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Qt/Fonts.h"
#include "platform/desktop/Qt/Paragraph.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "tests/integration/brimsound/DrawnTexts.h"
#include "tests/integration/brimsound/RunningQt.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"
#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/table/Cell.h"

#include <QGlyphRun>
#include <QTextLayout>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using toolkit::Alignment, toolkit::makeRect, toolkit::mirrored, toolkit::Rect;

constexpr double paneWidth = 320;
constexpr double rowMargin = 15;
/// The panel is in the middle of the pane.
constexpr double panelLeft = 44;

using Table = std::map<std::string, std::string>;

/// The names of the folders with texts, without their extension.
std::vector<std::string> languages()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(RESOURCES)) {
        if (entry.path().extension() == ".lproj")
            names.push_back(entry.path().stem());
    }
    std::ranges::sort(names);
    return names;
}

bool isReadFromRightToLeft(const std::string& language)
{
    return language == "ar" || language == "he";
}

/// All matches in the text, sorted.
std::vector<std::string> matches(const std::string& text, const std::string& pattern)
{
    const std::regex regex(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), regex); match != std::sregex_iterator();
         ++match)
        found.push_back(match->str());
    std::ranges::sort(found);
    return found;
}

class TextsInALanguage : public testing::TestWithParam<std::string> {
protected:
    /// Empty when the file is no property list with texts alone.
    static Table tableIn(const std::string& language)
    {
        const auto file = readPropertyListFile("/Library/PreferenceBundles/BrimsoundSettings.bundle/"
            + language + ".lproj/BrimsoundSettings.strings");
        Table table;
        if (!file || !file->asDictionary())
            return table;
        for (const auto& [key, text] : *file->asDictionary()) {
            if (!text.asString())
                return {};
            table[key] = *text.asString();
        }
        return table;
    }
    static Table table() { return tableIn(GetParam()); }

    TemporaryRoot root;
};

TEST_P(TextsInALanguage, AreThoseOfTheEnglishTable)
{
    std::vector<std::string> keys;
    for (const auto& [key, text] : table()) {
        keys.push_back(key);
        EXPECT_NE(text, "") << key;
    }
    std::vector<std::string> englishKeys;
    for (const auto& [key, text] : tableIn("en"))
        englishKeys.push_back(key);
    EXPECT_THAT(englishKeys, testing::SizeIs(testing::Gt(20)));
    EXPECT_EQ(keys, englishKeys);
}

TEST_P(TextsInALanguage, AreTheOnlyFileOfTheLanguage)
{
    std::vector<std::string> files;
    for (const auto& entry :
        std::filesystem::directory_iterator(RESOURCES + std::string("/") + GetParam() + ".lproj"))
        files.push_back(entry.path().filename());
    EXPECT_THAT(files, ElementsAre("BrimsoundSettings.strings"));
}

TEST_P(TextsInALanguage, KeepPlaceholdersNamesAndNumbers)
{
    const auto english = tableIn("en");
    for (const auto& [key, text] : table()) {
        EXPECT_EQ(matches(text, "%[^ ]"), matches(english.at(key), "%[^ ]")) << text;
        for (const auto* kept : { "@?Brimsound(HQ)?", "[0-9]+" })
            EXPECT_EQ(matches(text, kept), matches(english.at(key), kept)) << text;
    }
}

TEST_P(TextsInALanguage, HaveNoSpaceAtTheirEndsAndNoneThatBreaksAUnitOff)
{
    for (const auto& [key, text] : table()) {
        EXPECT_FALSE(text.starts_with(' ') || text.ends_with(' ') || text.find("  ") != std::string::npos)
            << '"' << text << '"';
        // U+00A0, in UTF-8.
        EXPECT_EQ(matches(text, "[0-9][^0-9.]").size(), matches(text, "[0-9]\xc2\xa0").size()) << text;
    }
}

/// The pane in a window that is high enough for all of it, without the session's environment.
class APaneInALanguage : public TextsInALanguage {
protected:
    APaneInALanguage() { FREQUENCY_STRS[0].reset(); }
    // The next pane looks up its own language.
    ~APaneInALanguage() override { FREQUENCY_STRS[0].reset(); }

    std::vector<DrawnText> drawnTexts() const
    {
        host.window().layOutAll();
        DrawnTexts canvas;
        host.window().drawTree(canvas);
        return canvas.texts;
    }
    /// Of the pane, and of the preset panel over it.
    std::vector<DrawnText> allDrawnTexts() const
    {
        auto all = drawnTexts();
        host.controller()->showPresets();
        const auto withPanel = drawnTexts();
        all.insert(all.end(), withPanel.begin(), withPanel.end());
        return all;
    }
    /// Of the title bar, the pane and the panel. Nothing else is drawn with the text.
    std::vector<DrawnText> drawnTexts(const std::string& key) const
    {
        auto all = allDrawnTexts();
        std::erase_if(all, [text = table()[key]](const auto& drawn) { return drawn.text != text; });
        return all;
    }
    /// What has that place in languages that are read from left to right.
    static Rect inReadingDirection(const Rect& rect)
    {
        return isReadFromRightToLeft(GetParam()) ? mirrored(rect, paneWidth) : rect;
    }
    static Alignment start()
    {
        return isReadFromRightToLeft(GetParam()) ? Alignment::Right : Alignment::Left;
    }

    RunningQt qt;
    EnvironmentVariable locale { "LC_ALL", "en_US.UTF-8" };
    EnvironmentVariable language { "LANGUAGE", GetParam().c_str() };
    TestBus bus;
    desktop::PaneHost host { { paneWidth, 2000 } };
};

TEST_P(APaneInALanguage, ShowsEveryText)
{
    std::set<std::string> drawn;
    for (const auto& text : allDrawnTexts())
        drawn.insert(text.text);
    auto texts = table();
    // Only read by screen readers.
    texts.erase("NAME");
    for (const auto& [key, text] : texts)
        EXPECT_TRUE(drawn.contains(text)) << key;
}

TEST_P(APaneInALanguage, CutsNoTextOff)
{
    for (const auto& drawn : allDrawnTexts()) {
        const auto& place = drawn.place.size;
        if (drawn.isParagraph) {
            const auto lines = desktop::paragraph(drawn.text, drawn.font, place.width, drawn.alignment);
            EXPECT_LE(lines->boundingRect().height(), place.height) << drawn.text;
            for (int line = 0; line < lines->lineCount(); ++line)
                EXPECT_LE(lines->lineAt(line).naturalTextWidth(), place.width) << drawn.text;
        } else {
            // A text that is exactly as wide as its place may end in an ellipsis.
            EXPECT_LE(widthOfLine(drawn.text, drawn.font) + 1, place.width) << drawn.text;
        }
    }
}

TEST_P(APaneInALanguage, HasAFontForEveryCharacter)
{
    for (const auto& drawn : allDrawnTexts()) {
        QTextLayout layout(QString::fromStdString(drawn.text), desktop::qFont(drawn.font));
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const auto& run : layout.glyphRuns())
            EXPECT_FALSE(run.glyphIndexes().contains(0)) << drawn.text;
    }
}

TEST_P(APaneInALanguage, StartsItsTextsWhereTheLanguageStartsItsLines)
{
    for (const auto* key : { "Enable Equalizer", "Presets", "Equalizer", "Both take effect after a respring.",
             "Respring", "Brimsound 1.5.5" }) {
        const auto drawn = drawnTexts(key);
        ASSERT_FALSE(drawn.empty()) << key;
        EXPECT_EQ(drawn.front().alignment, start()) << key;
        const auto place = inReadingDirection(drawn.front().place);
        EXPECT_EQ(place.left(), rowMargin) << key;
    }
    const auto save = drawnTexts("SAVE");
    ASSERT_FALSE(save.empty());
    EXPECT_EQ(save.front().alignment, start());
    // Beside the panel's edge there is the plus image.
    const auto place = inReadingDirection(save.front().place);
    EXPECT_GT(place.left(), panelLeft + 2 * rowMargin);
    EXPECT_EQ(place.right(), paneWidth - panelLeft - rowMargin);
}

TEST_P(APaneInALanguage, HasItsSwitchesWhereTheLanguageEndsItsLines)
{
    host.window().layOutAll();
    const auto* cell = host.controller()->table().cellForRowAtIndexPath({ 0, 0 });
    ASSERT_TRUE(cell && cell->accessoryView());
    const auto place = desktop::nativeView(*cell->accessoryView()).frame();
    EXPECT_EQ(inReadingDirection(place), makeRect(254, 6.5, 51, 31));
}

TEST_P(APaneInALanguage, HasItsSlidersAndThePanelWhereTheyAreInEnglish)
{
    host.window().layOutAll();
    const auto& sliders = *host.controller()->sliders();
    const auto& labels = *host.controller()->labels();
    ASSERT_EQ(sliders.size(), 11u);
    for (std::size_t i = 0; i < sliders.size(); ++i) {
        const double top = 44 * static_cast<double>(i);
        EXPECT_EQ(desktop::nativeView(*sliders[i]).frame(), makeRect(35, top, 280, 44));
        EXPECT_EQ(desktop::nativeView(*labels[i]).frame(), makeRect(5, top, 25, 44));
    }
    const auto captions = drawnTexts("PRE");
    ASSERT_FALSE(captions.empty());
    EXPECT_EQ(captions.front().place.left(), 5);
    EXPECT_EQ(captions.front().alignment, Alignment::Center);
    const auto& panel = *host.controller()->saver()->mainView();
    EXPECT_EQ(desktop::nativeView(panel).frame().left(), panelLeft);
}

std::string nameOfTest(const testing::TestParamInfo<std::string>& language)
{
    auto name = language.param;
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(OfTheBundle, TextsInALanguage, testing::ValuesIn(languages()), nameOfTest);
INSTANTIATE_TEST_SUITE_P(OfTheBundle, APaneInALanguage, testing::ValuesIn(languages()), nameOfTest);

TEST(TheBundle, HasTheLanguagesThatItIsSaidToHave)
{
    EXPECT_THAT(languages(),
        ElementsAre("ar", "bg", "cs", "da", "de", "el", "en", "es", "fi", "fr", "he", "hu", "it", "ja", "ko",
            "nb", "nl", "pl", "pt-BR", "ro", "ru", "sv", "tr", "uk", "zh-Hans"));
}

} // namespace
} // namespace brimsound::tests
