// Files on a real disk that is full, and files of somebody else's, each in a process of the test's own.
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/TemporaryRoot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brimsound::tests {
namespace {

namespace fs = std::filesystem;

constexpr int impossible = 77;

[[noreturn]] void runAndExit(const std::function<void()>& action) noexcept
{
    action();
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

/// Runs the action in a new process, whose failed expectations count here; skips the test when it ends with
/// `impossible`.
void inAProcessOfItsOwn(const char* reasonToSkip, const std::function<void()>& action)
{
    const pid_t process = fork();
    ASSERT_GE(process, 0);
    if (process == 0)
        runAndExit(action);
    int status = 0;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    ASSERT_TRUE(WIFEXITED(status)) << "ended by signal " << WTERMSIG(status);
    if (WEXITSTATUS(status) == impossible)
        GTEST_SKIP() << reasonToSkip;
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

/// Lays a disk of four pages over the folder, for this process alone.
bool mountSmallDisk(const fs::path& folder)
{
    if (unshare(geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount("none", folder.c_str(), "tmpfs", 0, "size=16k") == 0;
}

bool fill(const fs::path& file)
{
    std::ofstream stream(file, std::ios::binary);
    const std::string block(4096, 'x');
    while (stream.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) { }
    return fs::space(file.parent_path()).available == 0;
}

PropertyList::Dictionary preferencesWithLongName()
{
    return { { selectedPresetKey, std::string(6000, 'n') } };
}

TEST(AFullDisk, LosesTheFileUntilThereIsRoomAgain)
{
    const TemporaryRoot root;
    inAProcessOfItsOwn("this user may mount no disk", [&] {
        const auto folder = desktop::resolveDevicePath(preferencesPath).parent_path();
        if (!mountSmallDisk(folder))
            _exit(impossible);
        const PropertyList::Dictionary preferences { { enabledKey, false } };
        write_preferences(preferences);
        EXPECT_EQ(get_preferences(), preferences);

        ASSERT_TRUE(fill(folder / "filler"));
        write_preferences(preferencesWithLongName());
        EXPECT_LT(root.read(preferencesPath).size(), 6000u);
        EXPECT_TRUE(get_preferences().find(presetsKey)) << "no fresh ones";

        fs::remove(folder / "filler");
        write_preferences(preferencesWithLongName());
        EXPECT_EQ(get_preferences(), preferencesWithLongName());
    });
}

/// Gives everything in the root to a user who is not root, and becomes that.
bool becomeAnOrdinaryUser(const fs::path& root)
{
    constexpr uid_t nobody = 65534;
    if (geteuid() != 0)
        return true;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (chown(entry.path().c_str(), nobody, nobody) != 0)
            return false;
    }
    return chown(root.c_str(), nobody, nobody) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
}

TEST(AnUnreadableFile, CountsAsNoneAndIsReadOnceItMayBe)
{
    const TemporaryRoot root;
    const PropertyList::Dictionary preferences { { enabledKey, false } };
    write_preferences(preferences);
    inAProcessOfItsOwn("root reads everything here", [&] {
        if (!becomeAnOrdinaryUser(root.path()))
            _exit(impossible);
        const auto file = desktop::resolveDevicePath(preferencesPath);
        fs::permissions(file, fs::perms::none);
        EXPECT_TRUE(get_preferences().find(presetsKey)) << "no fresh ones";
        write_preferences({ { enabledKey, true } });
        fs::permissions(file, fs::perms::owner_read);
        EXPECT_EQ(get_preferences(), preferences);
    });
}

TEST(AnUnwritableFile, KeepsWhatItHolds)
{
    const TemporaryRoot root;
    const PropertyList::Dictionary preferences { { enabledKey, false } };
    write_preferences(preferences);
    inAProcessOfItsOwn("root writes everything here", [&] {
        if (!becomeAnOrdinaryUser(root.path()))
            _exit(impossible);
        const auto file = desktop::resolveDevicePath(preferencesPath);
        fs::permissions(file, fs::perms::owner_read);
        write_preferences({ { enabledKey, true } });
        EXPECT_EQ(get_preferences(), preferences);
    });
}

} // namespace
} // namespace brimsound::tests
