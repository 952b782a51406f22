// Files on a real full disk, and files of another user, each in its own process.
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/TemporaryRoot.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <functional>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
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

/// Runs the action in a new process whose failed expectations count here. Skips the test when the process
/// ends with `impossible`.
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

/// Mounts a disk of four pages over the folder, for this process only.
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
    return { { selectedPresetKey, std::string(10'000, 'n') } };
}

/// Makes the system fail with that error whenever space is reserved for a file.
bool refuseToReserve(int error)
{
    sock_filter instructions[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_fallocate, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program { std::size(instructions), instructions };
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0
        && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

class AFailedWrite : public testing::Test {
protected:
    AFailedWrite() { write_preferences(preferences); }

    /// Runs the action in its own process, with the preferences on a disk of four pages.
    static void onASmallDisk(const std::function<void()>& action)
    {
        const auto folder = desktop::resolveDevicePath(preferencesPath).parent_path();
        inAProcessOfItsOwn("this user may mount no disk", [&] {
            if (!mountSmallDisk(folder))
                _exit(impossible);
            write_preferences(preferences);
            action();
        });
    }

    static fs::path filler() { return desktop::resolveDevicePath(preferencesPath).parent_path() / "filler"; }

    /// Writes more than fits, and expects the old file.
    void expectToKeepTheFile() const
    {
        const auto before = root.read(preferencesPath);
        write_preferences(preferencesWithLongName());
        EXPECT_TRUE(root.read(preferencesPath) == before);
        EXPECT_EQ(get_preferences(), preferences);
    }

    TemporaryRoot root;
    inline static const PropertyList::Dictionary preferences { { enabledKey, false } };
};

TEST_F(AFailedWrite, ToAFullDiskKeepsTheFile)
{
    onASmallDisk([this] {
        ASSERT_TRUE(fill(filler()));
        expectToKeepTheFile();
        fs::remove(filler());
        write_preferences(preferencesWithLongName());
        EXPECT_EQ(get_preferences(), preferencesWithLongName());
    });
}

TEST_F(AFailedWrite, ToAFullDiskWithoutReservationKeepsTheFile)
{
    onASmallDisk([this] {
        ASSERT_TRUE(fill(filler()));
        // Leaves space for a part of the new file.
        fs::resize_file(filler(), fs::file_size(filler()) - 4096);
        ASSERT_TRUE(refuseToReserve(EOPNOTSUPP));
        expectToKeepTheFile();
        fs::remove(filler());
        write_preferences(preferencesWithLongName());
        EXPECT_EQ(get_preferences(), preferencesWithLongName());
    });
}

TEST_F(AFailedWrite, ToAFullDiskLeavesNoFileWhereThereWasNone)
{
    onASmallDisk([] {
        const auto file = desktop::resolveDevicePath(preferencesPath);
        fs::remove(file);
        ASSERT_TRUE(fill(filler()));
        write_preferences(preferencesWithLongName());
        EXPECT_FALSE(fs::exists(file));

        fs::create_symlink("elsewhere", file);
        write_preferences(preferencesWithLongName());
        EXPECT_TRUE(fs::is_symlink(file));
        EXPECT_FALSE(fs::exists(file.parent_path() / "elsewhere"));
    });
}

TEST_F(AFailedWrite, OfAShorterFileToAFullDiskSucceeds)
{
    onASmallDisk([] {
        write_preferences(preferencesWithLongName());
        ASSERT_TRUE(fill(filler()));
        write_preferences(preferences);
        EXPECT_EQ(get_preferences(), preferences);
    });
}

TEST_F(AFailedWrite, BeyondAQuotaKeepsTheFile)
{
    onASmallDisk([this] {
        ASSERT_TRUE(refuseToReserve(EDQUOT));
        expectToKeepTheFile();
    });
}

TEST_F(AFailedWrite, OfAFileThatWouldBeTooLargeKeepsTheFile)
{
    inAProcessOfItsOwn("", [this] {
        const rlimit small { 1000, RLIM_INFINITY };
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
        ASSERT_NE(std::signal(SIGXFSZ, SIG_IGN), SIG_ERR);
        expectToKeepTheFile();
    });
}

TEST_F(AFailedWrite, ToAReadOnlyDiskKeepsTheFile)
{
    onASmallDisk([this] {
        const auto folder = desktop::resolveDevicePath(preferencesPath).parent_path();
        ASSERT_EQ(mount("none", folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
        expectToKeepTheFile();
    });
}

/// Gives the files in the root to an ordinary user, and switches to that user.
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

TEST(AnUnreadableFile, CountsAsMissingAndIsReadOncePermitted)
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

TEST(AnUnwritableFile, KeepsItsContents)
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
