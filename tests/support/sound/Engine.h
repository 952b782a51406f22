#pragma once

#include "platform/Foundation/PropertyList.h"
#include "platform/desktop/process/ChildProcess.h"

#include <nlohmann/json.hpp>

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace brimsound::tests {

/// In dB, the preamp first.
using Gains = std::array<double, 11>;

/// Flat gains with that preamp.
Gains preamp(double decibels);
/// Writes these gains and other keys to the preferences file.
void storePreferences(const Gains&, PropertyList::Dictionary more = {});

/// Runs a real mediaserverd that equalizes, on the current session bus, device root and PipeWire. It ends
/// with this object.
class Engine {
public:
    /// Returns when the server can receive messages. `errors` is the file for its standard error. Throws
    /// std::runtime_error when the server ends before that.
    explicit Engine(const std::filesystem::path& errors = "/dev/null");

    /// The value of the next printed line with that key; other lines are skipped. Null when none arrives
    /// within half a minute.
    nlohmann::json next(const std::string& key);

    desktop::ChildProcess& process() { return *_process; }
    /// Sends SIGTERM and returns the exit status.
    std::optional<int> stop();
    /// Sends SIGKILL.
    void kill();

private:
    std::optional<desktop::ChildProcess> _process;
};

/// Sends gains as the pane does. Returns whether the server accepted them.
bool send(const Gains&);
/// Notifies the server that flags in the file changed.
void postSettingsChanged();
/// Notifies the server that gains in the file changed.
void postSettingsFinished();

} // namespace brimsound::tests
