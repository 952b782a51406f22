#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestBus.h"

#include <nlohmann/json.hpp>

#include <list>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brimsound::tests {

/// The test's own sound system: a session bus, PipeWire, its session manager and its PulseAudio server, all
/// in their own folder, which this process and its children use. It has the stereo devices "hw1", the
/// default, and "hw2", and the device "surround" with six channels. The devices accept sound in real time,
/// which can be recorded. Only one at a time.
class SoundSystem {
public:
    enum class Devices { All, None };

    /// Throws std::runtime_error when a daemon is missing or does not start.
    explicit SoundSystem(Devices = Devices::All);
    SoundSystem(const SoundSystem&) = delete;
    SoundSystem& operator=(const SoundSystem&) = delete;

    const std::filesystem::path& folder() const { return _folder.path(); }
    TestBus& bus() { return _bus; }

    /// Kills everything except the bus, as in a crash of PipeWire, and the second function starts it again.
    void killPipeWire();
    void startPipeWire();
    /// Kills only the session manager.
    void killSessionManager();
    void startSessionManager();

    /// Removes the device, as when it is unplugged.
    void unplug(const std::string& device);
    /// Adds the device, also again after it was removed.
    void plugIn(const std::string& name);
    /// Makes this sink the default, as a user does in a sound panel.
    void chooseDefault(const std::string& sink);
    /// The name of the current default sink.
    std::string defaultSink();
    bool waitForDefault(const std::string& sink);

    /// Moves a program's stream to a sink or to the default, as a mixer does.
    void moveStream(std::uint32_t stream, const std::string& sink);
    void moveStreamToDefault(std::uint32_t stream);

    /// A report for failed tests: which daemons run, what they printed, and which nodes are linked.
    std::string report();

    /// The whole graph, as printed by pw-dump.
    nlohmann::json graph();
    /// The node with that name; nothing when there is none, the newest when there are several.
    std::optional<std::uint32_t> node(const std::string& name);
    /// The names of the nodes that a node is linked to.
    std::set<std::string> targetsOf(const std::string& nodeName);
    bool waitForTargets(const std::string& nodeName, const std::set<std::string>& targets);
    /// The value of a metadata key; nothing when there is none.
    std::optional<std::string> metadata(std::uint32_t subject, const std::string& key);
    /// Sets a key of the metadata with that name.
    void setMetadata(const std::string& name, std::uint32_t subject, const std::string& key,
        const std::string& value, const std::string& type);

private:
    void writeConfiguration(Devices);
    void start(std::optional<desktop::ChildProcess>& daemon, const std::string& program);

    TemporaryFolder _folder;
    std::list<EnvironmentVariable> _environment;
    TestBus _bus;
    bool _hasDevices;
    std::optional<desktop::ChildProcess> _pipewire;
    std::optional<desktop::ChildProcess> _sessionManager;
    std::optional<desktop::ChildProcess> _pulse;
};

/// The standard output of a command. Its standard error is discarded.
std::string outputOf(const std::vector<std::string>& command);

} // namespace brimsound::tests
