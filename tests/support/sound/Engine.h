// A media server that equalizes.
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

/// All gains flat but for the preamp.
Gains preamp(double decibels);
/// The preferences file with these gains, and other keys.
void storePreferences(const Gains&, PropertyList::Dictionary more = {});

/// A real mediaserverd on the session bus, the device root and the PipeWire of the moment. It ends with this
/// object.
class Engine {
public:
    /// Comes back when the server can be sent to. `errors` is the file for its standard error. Throws
    /// std::runtime_error when the server ended before that.
    explicit Engine(const std::filesystem::path& errors = "/dev/null");

    /// The value of the next line that it prints with that key, other lines left out; null when none comes
    /// within half a minute.
    nlohmann::json next(const std::string& key);

    desktop::ChildProcess& process() { return *_process; }
    /// SIGTERM, and the exit status.
    std::optional<int> stop();
    /// SIGKILL.
    void kill();

private:
    std::optional<desktop::ChildProcess> _process;
};

/// Sends gains as the pane does. Whether the server took them.
bool send(const Gains&);
/// Tells the server that flags in the file changed.
void postSettingsChanged();
/// Tells the server that gains in the file changed.
void postSettingsFinished();

} // namespace brimsound::tests
