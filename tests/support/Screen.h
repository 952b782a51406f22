#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace brimsound::tests {

/// An X server with an invisible screen. Programs that are started while it exists open their windows there.
class Screen {
public:
    Screen()
        : _server({ "Xvfb", "-displayfd", "1", "-screen", "0", "900x1200x24", "-nolisten", "tcp" },
            desktop::ChildProcess::Output::Piped)
        , _wayland("WAYLAND_DISPLAY", nullptr)
        , _platform("QT_QPA_PLATFORM", nullptr)
    {
        const auto number = _server.readLine(std::chrono::seconds(20));
        if (!number)
            throw std::runtime_error("Xvfb did not start");
        _display.emplace("DISPLAY", (":" + *number).c_str());
    }

private:
    desktop::ChildProcess _server;
    EnvironmentVariable _wayland;
    EnvironmentVariable _platform;
    std::optional<EnvironmentVariable> _display;
};

} // namespace brimsound::tests
