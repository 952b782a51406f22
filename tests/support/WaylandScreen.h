#pragma once

#include "tests/support/Screen.h"

#include <chrono>
#include <thread>

namespace brimsound::tests {

/// A Wayland compositor in a window at the upper left of an X screen. Programs that are started while it
/// exists open their windows there, each as large as the compositor's window, and cannot reach the X server.
class WaylandScreen {
public:
    /// The size is in pixels.
    WaylandScreen(const Screen& screen, int width, int height)
        : _runtimeFolder("XDG_RUNTIME_DIR", _folder.path().c_str())
        , _compositor({ "env", "DISPLAY=" + screen.name(), "weston", "--backend=x11-backend.so",
              "--use-pixman", "--shell=kiosk-shell.so", "--width=" + std::to_string(width),
              "--height=" + std::to_string(height), "--idle-time=0", "--no-config", "--socket=wayland-test",
              "--log=" + (_folder.path() / "log").string() })
        , _display("DISPLAY", nullptr)
        , _wayland("WAYLAND_DISPLAY", "wayland-test")
    {
        for (int tries = 0; !std::filesystem::exists(_folder.path() / "wayland-test"); ++tries) {
            if (tries > 2000)
                throw std::runtime_error("weston did not start:\n" + readFile(_folder.path() / "log"));
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }

private:
    TemporaryFolder _folder;
    EnvironmentVariable _runtimeFolder;
    desktop::ChildProcess _compositor;
    EnvironmentVariable _display;
    EnvironmentVariable _wayland;
};

} // namespace brimsound::tests
