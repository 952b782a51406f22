#include "platform/desktop/Foundation/DeviceRoot.h"

#include "platform/Foundation/NSBundle.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

namespace brimsound {

using desktop::resolveDevicePath;
using tests::TemporaryRoot;
namespace fs = std::filesystem;

TEST(ADevicePath, IsUnderTheDeviceRoot)
{
    const TemporaryRoot root;
    EXPECT_EQ(resolveDevicePath("/var/mobile/file.plist"), root.path() / "var/mobile/file.plist");
    EXPECT_EQ(resolveDevicePath("file.plist"), root.path() / "file.plist");
}

TEST(ADevicePath, DoesNotLeadOutOfTheDeviceRoot)
{
    const TemporaryRoot root;
    EXPECT_EQ(resolveDevicePath("/../../etc/passwd"), root.path() / "etc/passwd");
    EXPECT_EQ(resolveDevicePath("/var/../../../etc/passwd"), root.path() / "etc/passwd");
    EXPECT_EQ(resolveDevicePath("../etc/passwd"), root.path() / "etc/passwd");
    EXPECT_EQ(resolveDevicePath("/Library/PreferenceBundles/BrimsoundSettings.bundle/../../etc"),
        root.path() / "Library/etc");
}

TEST(ADevicePath, InTheInstalledBundleRefersToTheProgramsResources)
{
    const auto resources = fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "share/brimsound";
    const auto bundle = NSBundle::bundleForClass("BrimsoundSettingsListController").bundlePath();
    EXPECT_EQ(resolveDevicePath(bundle), resources / "BrimsoundSettings.bundle");
    EXPECT_EQ(resolveDevicePath(bundle + "/plus@2x.png"), resources / "BrimsoundSettings.bundle/plus@2x.png");
}

TEST(ADevicePath, ThatOnlyBeginsLikeTheBundlesIsOutsideTheBundle)
{
    const TemporaryRoot root;
    EXPECT_EQ(resolveDevicePath("/Library/PreferenceBundles/BrimsoundSettings.bundle2"),
        root.path() / "Library/PreferenceBundles/BrimsoundSettings.bundle2");
}

TEST(PreparingTheDeviceRoot, MakesThePreferencesFolderForTheUserAlone)
{
    const TemporaryRoot temporary;
    desktop::setDeviceRoot(temporary.path() / "new/root");
    desktop::prepareDeviceRoot();
    desktop::prepareDeviceRoot();

    const auto preferences = temporary.path() / "new/root/var/mobile/Library/Preferences";
    ASSERT_TRUE(fs::is_directory(preferences));
    EXPECT_EQ(fs::status(preferences).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(temporary.path() / "new").permissions(), fs::perms::owner_all);
}

TEST(PreparingTheDeviceRoot, ThrowsWhenAFileIsInTheWay)
{
    const TemporaryRoot temporary;
    temporary.write("/file", "in the way");
    desktop::setDeviceRoot(temporary.path() / "file");
    EXPECT_THROW(desktop::prepareDeviceRoot(), fs::filesystem_error);
}

} // namespace brimsound
