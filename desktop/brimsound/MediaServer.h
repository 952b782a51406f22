#pragma once

#include "platform/desktop/bus/ServiceStart.h"
#include "platform/desktop/process/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace brimsound::desktop {

/// Provides a media server for the app whenever none is on the bus. If the user has enabled the service that
/// runs one, the bus starts it; otherwise this class starts mediaserverd itself, with the device root. A
/// server that was started by another program is left alone.
class MediaServer {
public:
    /// Whether the server equalizes the desktop's sound, or only answers.
    enum class Sound { Equalized, LeftAlone };

    /// `program` is the path of mediaserverd. Returns when a media server owns the center's name. Throws
    /// std::runtime_error when none does.
    MediaServer(std::filesystem::path program, std::filesystem::path root, Sound);
    MediaServer(const MediaServer&) = delete;
    MediaServer& operator=(const MediaServer&) = delete;
    ~MediaServer();

private:
    bool serviceStarts() const;
    void start(std::chrono::milliseconds patience);
    void serverLost();
    void startIfMissing();
    void startOwn();
    void lookAgain();
    void callNext(double delay, std::function<void()> action);
    void cancelNext();

    const std::filesystem::path _program;
    const std::filesystem::path _root;
    const Sound _sound;
    /// Null while another program's server is used.
    std::unique_ptr<ChildProcess> _process;
    /// The pending or last request for the service.
    std::optional<ServiceStart> _serviceStart;
    /// When this object last started a server or had it started.
    std::chrono::steady_clock::time_point _started;
    int _quickEnds = 0;
    /// Seconds until the next check for a missing server.
    double _pause = 1;
    /// The number of the clock's next action for this object: that check, or the end of the wait for the
    /// service. Nothing when none is scheduled.
    std::optional<std::uint64_t> _next;
};

} // namespace brimsound::desktop
