#include "platform/Foundation/NSBundle.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

namespace brimsound {

namespace {

std::string strings(const std::string& contents)
{
    return "<plist version=\"1.0\"><dict>" + contents + "</dict></plist>";
}

std::string save(const std::string& text)
{
    return strings("<key>SAVE</key><string>" + text + "</string>");
}

class ABundle : public testing::Test {
protected:
    void speak(const char* language)
    {
        _language.emplace("LANGUAGE", language);
        _locale.emplace("LC_ALL", "en_US.UTF-8");
    }

    std::string saveText() const { return bundle.localizedStringForKey("SAVE", "Save as", "Texts"); }

    tests::TemporaryRoot root;
    NSBundle bundle { "/Test.bundle" };

private:
    std::optional<tests::EnvironmentVariable> _language;
    std::optional<tests::EnvironmentVariable> _locale;
};

} // namespace

TEST_F(ABundle, ReturnsTheDevicePathOfAResource)
{
    root.write("/Test.bundle/Pane.plist", "");
    root.write("/Test.bundle/README", "");
    EXPECT_EQ(bundle.pathForResource("Pane", "plist"), "/Test.bundle/Pane.plist");
    EXPECT_EQ(bundle.pathForResource("README", ""), "/Test.bundle/README");
    EXPECT_EQ(bundle.pathForResource("Pane", "png"), std::nullopt);
}

TEST_F(ABundle, ReturnsTheResourceOfTheMostPreferredLanguageThatHasIt)
{
    root.write("/Test.bundle/en.lproj/Texts.strings", save("Save"));
    root.write("/Test.bundle/fr.lproj/Texts.strings", save("Enregistrer"));
    root.write("/Test.bundle/fr-CA.lproj/Texts.strings", save("Sauvegarder"));
    speak("fr_CA:en");
    EXPECT_EQ(saveText(), "Sauvegarder");
    speak("fr_BE:en");
    EXPECT_EQ(saveText(), "Enregistrer");
    speak("de:fr:en");
    EXPECT_EQ(saveText(), "Enregistrer");
}

TEST_F(ABundle, FallsBackToEnglishAndThenToItsOwnFolder)
{
    speak("de");
    root.write("/Test.bundle/Texts.strings", save("of no language"));
    EXPECT_EQ(saveText(), "of no language");
    root.write("/Test.bundle/en.lproj/Texts.strings", save("Save"));
    EXPECT_EQ(saveText(), "Save");
}

TEST_F(ABundle, ReturnsTheDefaultForAMissingText)
{
    EXPECT_EQ(saveText(), "Save as");
    root.write("/Test.bundle/Texts.strings", strings("<key>CANCEL</key><string>Cancel</string>"));
    EXPECT_EQ(saveText(), "Save as");
    root.write("/Test.bundle/Texts.strings", strings("<key>SAVE</key><integer>1</integer>"));
    EXPECT_EQ(saveText(), "Save as");
    root.write("/Test.bundle/Texts.strings", "no property list");
    EXPECT_EQ(saveText(), "Save as");
}

TEST(TheBundleOfAClass, IsTheInstalledOne)
{
    EXPECT_EQ(NSBundle::bundleForClass("BrimsoundSettingsListController").bundlePath(),
        "/Library/PreferenceBundles/BrimsoundSettings.bundle");
}

} // namespace brimsound
