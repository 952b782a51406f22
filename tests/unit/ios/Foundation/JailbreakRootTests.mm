#include "platform/ios/Foundation/JailbreakRoot.h"

#include "platform/System/process.h"
#include "platform/UIKit/UIImage.h"
#include "settings/run_cmd.h"
#include "tests/doubles/Foundation/DeviceFiles.h"
#include "tests/doubles/Foundation/InstalledBundle.h"
#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"
#include "tests/support/TemporaryFolder.h"

#import <Foundation/Foundation.h>

#include <sys/wait.h>

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

namespace {

const std::string bundle = "/Library/PreferenceBundles/BrimsoundSettings.bundle";

TEST(TheRoot, StandsBeforeTheFolderOfPreferenceBundles)
{
    const std::array<std::pair<std::string, std::string>, 8> cases { {
        { bundle, "" },
        { "/var/jb" + bundle, "/var/jb" },
        { "/private/preboot/0A1B/jb-x2Yz/procursus" + bundle, "/private/preboot/0A1B/jb-x2Yz/procursus" },
        { "/var/containers/Bundle/Application/.jbroot-0123456789ABCDEF" + bundle,
            "/var/containers/Bundle/Application/.jbroot-0123456789ABCDEF" },
        { "/a/Library/PreferenceBundles/b" + bundle, "/a/Library/PreferenceBundles/b" },
        { "/usr/lib/brimsound", "" },
        { "/Library/PreferenceBundles", "" },
        { "", "" },
    } };
    for (const auto& [path, root] : cases)
        EXPECT_EQ(ios::rootOf(path), root) << path;
}

struct Jailbreak {
    std::string name;
    std::string root;
};

void PrintTo(const Jailbreak& jailbreak, std::ostream* stream)
{
    *stream << jailbreak.name;
}

const std::vector<Jailbreak> rootless { { "Rootless", "/var/jb" },
    { "RootlessByItsRealPath", "/private/preboot/0A1B/jb-x2Yz/procursus" },
    { "Roothide", "/var/containers/Bundle/Application/.jbroot-0123456789ABCDEF" } };

std::vector<Jailbreak> allJailbreaks()
{
    auto all = rootless;
    all.push_back({ "Rootful", "" });
    return all;
}

std::string nameOfTest(const testing::TestParamInfo<Jailbreak>& test)
{
    return test.param.name;
}

/// A device with the bundle installed below a root, and a shell and programs there.
class Root : public testing::TestWithParam<Jailbreak> {
protected:
    Root()
    {
        std::filesystem::create_directories(below("/Library/PreferenceBundles"));
        std::filesystem::create_directory_symlink(
            [[[::NSBundle mainBundle] resourcePath] UTF8String], below(bundle));
        addProgram("/usr/bin/dpkg-query", "echo packages below the root");
        addProgram("/usr/bin/killall", "echo $1 >" + below("/killed").string());
        std::filesystem::create_directories(below("/bin"));
        std::filesystem::create_symlink("/bin/sh", below("/bin/sh"));
        std::filesystem::create_symlink("/usr/bin/env", below("/usr/bin/env"));
        doubles::setDeviceRoot(device.path());
        doubles::setBundlePath(root() + bundle);
        doubles::carryOutCommands(true);
        doubles::takeTrace();
    }

    ~Root() override
    {
        doubles::carryOutCommands(false);
        doubles::setBundlePath({});
        doubles::setDeviceRoot({});
    }

    /// As the bundle's path has it. The files of a rootful jailbreak are the device's own.
    std::string root() const { return GetParam().root.empty() ? "" : below("").string(); }
    std::filesystem::path below(const std::string& path) const
    {
        return device.path().string() + GetParam().root + path;
    }

    void addProgram(const std::string& path, const std::string& line) const
    {
        writeFile(below(path), "#!/bin/sh\n" + line + "\n");
        std::filesystem::permissions(below(path), std::filesystem::perms::owner_all);
    }

    static std::string outputOf(const char* command)
    {
        const auto bytes = run_cmd(command);
        return bytes ? std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()) : "(null)";
    }

    const TemporaryFolder device;
};

TEST_P(Root, IsThatOfTheBundle)
{
    EXPECT_EQ(ios::jailbreakRoot(), root());
}

TEST_P(Root, HasTheFilesOfPackages)
{
    EXPECT_EQ(ios::devicePath(bundle + "/plus@2x.png"), root() + bundle + "/plus@2x.png");
    const auto preferences = "/var/mobile/Library/Preferences/com.quorvix.brimsound.plist";
    EXPECT_EQ(ios::devicePath(preferences), preferences);
}

TEST_P(Root, HasThePlusImage)
{
    const auto plus = UIImage::imageWithContentsOfFile(bundle + "/plus@2x.png");
    ASSERT_TRUE(plus);
    EXPECT_EQ(plus->scale(), 2);
}

TEST_P(Root, ComesFirstWhenACommandLooksForPrograms)
{
    EXPECT_EQ(outputOf("echo $PATH"), root() + "/usr/bin:" + root() + "/bin:/usr/bin:/bin\n");
}

TEST_P(Root, ComesBeforeTheProgramThatACommandNamesByItsPath)
{
    outputOf("/usr/bin/env dpkg-query --show");
    EXPECT_THAT(
        doubles::takeTrace(), testing::ElementsAre("shell " + root() + "/usr/bin/env dpkg-query --show"));
}

INSTANTIATE_TEST_SUITE_P(OfAJailbreak, Root, testing::ValuesIn(allJailbreaks()), nameOfTest);

class ARootOfItsOwn : public Root { };

TEST_P(ARootOfItsOwn, ListsItsPackages)
{
    EXPECT_EQ(outputOf("/usr/bin/env dpkg-query --show"), "packages below the root\n");
}

TEST_P(ARootOfItsOwn, RunsItsKillall)
{
    EXPECT_EQ(brimsound::system("killall mediaserverd"), 0);
    EXPECT_EQ(readFile(below("/killed")), "mediaserverd\n");
}

TEST_P(ARootOfItsOwn, RunsNothingWithoutAShell)
{
    std::filesystem::remove(below("/bin/sh"));
    EXPECT_EQ(brimsound::popen("echo text", "r"), nullptr);
    EXPECT_EQ(WEXITSTATUS(brimsound::system("killall mediaserverd")), 127);
    EXPECT_EQ(readFile(below("/killed")), "");
}

INSTANTIATE_TEST_SUITE_P(OfAJailbreak, ARootOfItsOwn, testing::ValuesIn(rootless), nameOfTest);

} // namespace

} // namespace brimsound::tests
