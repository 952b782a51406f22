// The media server that the app brings along.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>

namespace brimsound::desktop {

/// Starts mediaserverd from the program's own folder with the device root whenever no media server is on the
/// bus, as the system's launcher would. One that somebody else runs is left alone; when it leaves, this one's
/// takes its place.
class MediaServer {
public:
    /// Whether the server equalizes the desktop's sound, or only answers.
    enum class Sound { Equalized, LeftAlone };

    /// Comes back when a media server answers to the center's name. Throws std::runtime_error when none does.
    MediaServer(std::filesystem::path programFolder, std::filesystem::path root, Sound);
    MediaServer(const MediaServer&) = delete;
    MediaServer& operator=(const MediaServer&) = delete;
    ~MediaServer();

private:
    void start(std::chrono::milliseconds patience);
    void serverLost();
    void startIfMissing();
    void lookAgain();

    const std::filesystem::path _programFolder;
    const std::filesystem::path _root;
    const Sound _sound;
    /// Null while somebody else's serves.
    std::unique_ptr<ChildProcess> _process;
    std::chrono::steady_clock::time_point _started;
    int _quickEnds = 0;
    /// Seconds before the next look at whether one is missing.
    double _pause = 1;
    /// The number of that look; nothing while none is due.
    std::optional<std::uint64_t> _nextLook;
};

} // namespace brimsound::desktop
