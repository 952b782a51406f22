#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

namespace brimsound::tests {

/// An X server with an invisible screen. Programs that are started while it exists open their windows there.
class Screen {
public:
    Screen()
        : _server({ "Xvfb", "-displayfd", "1", "-screen", "0", "900x1200x24", "-nolisten", "tcp", "-noreset",
                      "-fbdir", _folder.path() },
            desktop::ChildProcess::Output::Piped)
        , _wayland("WAYLAND_DISPLAY", nullptr)
        , _platform("QT_QPA_PLATFORM", nullptr)
    {
        const auto number = _server.readLine(std::chrono::seconds(20));
        if (!number)
            throw std::runtime_error("Xvfb did not start");
        _name = ":" + *number;
        _display.emplace("DISPLAY", _name.c_str());
    }

    /// For the environment variable DISPLAY.
    const std::string& name() const { return _name; }
    /// The file with the screen's pixels, in the format of the program xwd.
    std::filesystem::path pixels() const { return _folder.path() / "Xvfb_screen0"; }

private:
    TemporaryFolder _folder;
    desktop::ChildProcess _server;
    EnvironmentVariable _wayland;
    EnvironmentVariable _platform;
    std::string _name;
    std::optional<EnvironmentVariable> _display;
};

} // namespace brimsound::tests
