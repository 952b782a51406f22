// All files that the fuzzers start from, and all files with which they found errors.
#include "tests/fuzz/GestureScript.h"
#include "tests/fuzz/PreferencesFile.h"
#include "tests/fuzz/PresetFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace brimsound::tests {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(const std::string& corpus)
{
    const auto folder = fs::path(CORPUS) / corpus;
    return { fs::directory_iterator(folder), {} };
}

std::string contentsOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

TEST(EveryFileOfTheCorpus, IsReadAndWrittenAsPreferences)
{
    const auto files = filesOf("preferences");
    EXPECT_FALSE(files.empty());
    for (const auto& file : files) {
        const auto contents = contentsOf(file);
        EXPECT_NO_THROW(tryPreferencesFile(std::as_bytes(std::span(contents)))) << file;
    }
}

TEST(EveryFileOfTheCorpus, IsParsedAsAScript)
{
    const auto files = filesOf("script");
    EXPECT_FALSE(files.empty());
    for (const auto& file : files)
        EXPECT_NO_THROW(tryGestureScript(contentsOf(file))) << file;
}

TEST(EveryFileOfTheCorpus, IsReadAsAPreset)
{
    for (const std::string format :
        { "eqf", "apo", "graphiceq", "easyeffects", "xmms", "numbers", "json", "any" }) {
        const auto files = filesOf("preset_" + format);
        EXPECT_FALSE(files.empty());
        for (const auto& file : files) {
            const auto contents = contentsOf(file);
            EXPECT_NO_THROW(tryPresetFile(contents, presets::formatNamed(format))) << file;
            EXPECT_NO_THROW(tryConversion(contents)) << file;
        }
    }
}

} // namespace
} // namespace brimsound::tests
