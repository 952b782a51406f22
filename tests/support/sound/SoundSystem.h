// A desktop's sound of a test's own.
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

/// A session bus, PipeWire, its session manager and its PulseAudio server, all in a folder of their own,
/// which this process and its children find. There are the stereo devices "hw1", which is the default, and
/// "hw2", and the device "surround" with six channels. They take sound in real time, and what they took can
/// be recorded. Only one at a time.
class SoundSystem {
public:
    enum class Devices { All, None };

    /// Throws std::runtime_error when a daemon is missing or does not start.
    explicit SoundSystem(Devices = Devices::All);
    SoundSystem(const SoundSystem&) = delete;
    SoundSystem& operator=(const SoundSystem&) = delete;

    const std::filesystem::path& folder() const { return _folder.path(); }
    TestBus& bus() { return _bus; }

    /// Ends everything but the bus, as a crash of PipeWire would, and starts it.
    void killPipeWire();
    void startPipeWire();
    /// Ends the session manager alone, by a crash.
    void killSessionManager();
    void startSessionManager();

    /// Takes the device away, as when it is unplugged.
    void unplug(const std::string& device);
    /// Brings it (back).
    void plugIn(const std::string& name);
    /// What a user does in a panel: this sink is to be the default.
    void chooseDefault(const std::string& sink);
    /// The name of the sink that is the default now.
    std::string defaultSink();
    bool waitForDefault(const std::string& sink);

    /// What a mixer does when the user moves a program's stream: to a sink, or to the default.
    void moveStream(std::uint32_t stream, const std::string& sink);
    void moveStreamToDefault(std::uint32_t stream);

    /// For a test that failed: which daemons run, what they said, and who plays to whom.
    std::string report();

    /// The whole graph, as pw-dump tells it.
    nlohmann::json graph();
    /// A node by its name; nothing when there is none. Of several, the newest.
    std::optional<std::uint32_t> node(const std::string& name);
    /// The names of the nodes that a node plays to.
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

/// Everything that a command prints on standard output. The command's standard error is dropped.
std::string outputOf(const std::vector<std::string>& command);

} // namespace brimsound::tests
