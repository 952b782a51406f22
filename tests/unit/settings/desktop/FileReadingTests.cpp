// How often the pane opens the preferences file, observed from outside.
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/tweak.h"
#include "tests/unit/settings/Pane.h"
#include "tests/unit/settings/PresetPane.h"

#include <gmock/gmock.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <sys/inotify.h>
#include <unistd.h>

namespace brimsound::tests {
namespace {

using testing::ElementsAreArray;

/// Records each time that a process closes the file.
class FileWatch {
public:
    explicit FileWatch(const std::filesystem::path& file)
        : _queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        // Opening is watched too, because equal consecutive events are merged.
        inotify_add_watch(_queue, file.c_str(), IN_OPEN | IN_CLOSE);
    }
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;
    ~FileWatch() { close(_queue); }

    /// "read" or "write" for each time since the last call.
    std::vector<std::string> takeUses() const
    {
        std::vector<std::string> uses;
        std::array<std::byte, 4096> bytes {};
        for (ssize_t count = 0; (count = read(_queue, bytes.data(), bytes.size())) > 0;) {
            for (std::size_t place = 0; place < static_cast<std::size_t>(count);) {
                inotify_event event {};
                std::memcpy(&event, bytes.data() + place, sizeof event);
                place += sizeof event + event.len;
                if ((event.mask & IN_CLOSE) != 0)
                    uses.emplace_back((event.mask & IN_CLOSE_WRITE) != 0 ? "write" : "read");
            }
        }
        return uses;
    }

private:
    int _queue;
};

/// Only the pane uses the file.
class ThePreferencesFile : public testing::Test {
protected:
    ThePreferencesFile() { platform.stopMediaServer(); }

    TestPlatform platform;
    FileWatch watch { newFile() };

private:
    std::filesystem::path newFile()
    {
        platform.writePreferencesFile(preferencesWith(std::vector<float>(10)));
        return desktop::resolveDevicePath(preferencesPath);
    }
};

TEST_F(ThePreferencesFile, IsNotOpenedWhileASliderIsDragged)
{
    const Pane pane(platform);
    watch.takeUses();
    pane.touch(3);
    pane.drag(3, 4.5f);
    EXPECT_THAT(watch.takeUses(), testing::IsEmpty());
    pane.lift(3);
    // The pane ignores the notification that it posted itself.
    platform.deliverNotifications();
    EXPECT_THAT(watch.takeUses(), ElementsAreArray({ "read", "write" }));
}

TEST_F(ThePreferencesFile, IsReadAndWrittenOnceForEachStepOfAPreset)
{
    const PresetPane pane(platform);
    pane.showPresets();
    watch.takeUses();
    pane.choose("Rock");
    std::vector<std::string> expected;
    for (int step = 0; step < 11; ++step)
        expected.insert(expected.end(), { "read", "write" });
    EXPECT_EQ(watch.takeUses(), expected);
    platform.deliverNotifications();
    EXPECT_THAT(watch.takeUses(), ElementsAreArray({ "read" }));
}

} // namespace
} // namespace brimsound::tests
