#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>

namespace brimsound::desktop {

/// Runs the media server for the app. Starts mediaserverd from the program's own folder, with the device
/// root, whenever no media server is on the bus, as the system's launcher would. A server that was started by
/// another program is left alone. When that ends, this class starts its own.
class MediaServer {
public:
    /// Whether the server equalizes the desktop's sound, or only answers.
    enum class Sound { Equalized, LeftAlone };

    /// Returns when a media server owns the center's name. Throws std::runtime_error when none does.
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
    /// Null while another program's server is used.
    std::unique_ptr<ChildProcess> _process;
    std::chrono::steady_clock::time_point _started;
    int _quickEnds = 0;
    /// Seconds until the next check for a missing server.
    double _pause = 1;
    /// The number of that check; nothing when none is scheduled.
    std::optional<std::uint64_t> _nextLook;
};

} // namespace brimsound::desktop
