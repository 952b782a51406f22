// The media server that the app brings along.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <memory>

namespace brimsound::desktop {

/// Starts mediaserverd from the program's own folder with the device root when no media server is on the bus,
/// and starts it again whenever it has ended, as the system's launcher would. One that somebody else runs is
/// left alone.
class MediaServer {
public:
    /// Comes back when a media server answers to the center's name. Throws std::runtime_error when none does.
    MediaServer(std::filesystem::path programFolder, std::filesystem::path root);
    MediaServer(const MediaServer&) = delete;
    MediaServer& operator=(const MediaServer&) = delete;

private:
    void start();
    void startAgain();

    const std::filesystem::path _programFolder;
    const std::filesystem::path _root;
    /// Null while somebody else's serves.
    std::unique_ptr<ChildProcess> _process;
    std::chrono::steady_clock::time_point _started;
    int _quickEnds = 0;
};

} // namespace brimsound::desktop
