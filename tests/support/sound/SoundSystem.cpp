#include "tests/support/sound/SoundSystem.h"

#include "tests/support/sound/Wait.h"

#include <csignal>
#include <dlfcn.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>

namespace brimsound::tests {

namespace {

using Json = nlohmann::json;

constexpr auto stereoChannels = "[ FL FR ]";
constexpr auto surroundChannels = "[ FL FR FC LFE RL RR ]";
constexpr auto libdbus = "libdbus-1.so.3";

/// The arguments of a null device that accepts sound in real time.
std::string device(const std::string& name)
{
    const int priority = name == "hw1" ? 1000 : name == "hw2" ? 900 : 800;
    // Some session managers crash when a device is removed that they are about to suspend.
    return "{ factory.name = support.null-audio-sink node.name = " + name
        + " media.class = Audio/Sink audio.position = "
        + (name == "surround" ? surroundChannels : stereoChannels)
        + " priority.session = " + std::to_string(priority) + " priority.driver = " + std::to_string(priority)
        + " object.linger = true session.suspend-timeout-seconds = 0 }";
}

bool isSocket(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_socket(path, error);
}

void require(bool condition, const char* what)
{
    if (!condition)
        throw std::runtime_error(what);
}

} // namespace

std::string outputOf(const std::vector<std::string>& command)
{
    std::vector<std::string> arguments { "sh", "-c", "exec \"$@\" 2>/dev/null", "sh" };
    arguments.insert(arguments.end(), command.begin(), command.end());
    desktop::ChildProcess process(arguments, desktop::ChildProcess::Output::Piped);
    std::string output;
    while (const auto line = process.readLine(std::chrono::seconds(20)))
        output += *line + "\n";
    return output;
}

SoundSystem::SoundSystem(Devices devices)
    : _hasDevices(devices == Devices::All)
{
    const auto run = folder() / "run";
    std::filesystem::create_directory(run);
    chmod(run.c_str(), 0700);
    const auto set
        = [&](const char* name, const std::string& value) { _environment.emplace_back(name, value.c_str()); };
    set("HOME", folder());
    set("XDG_RUNTIME_DIR", run);
    set("XDG_CONFIG_HOME", folder() / "configuration");
    set("XDG_STATE_HOME", folder() / "state");
    set("PIPEWIRE_RUNTIME_DIR", run);
    set("PULSE_RUNTIME_PATH", run / "pulse");
    set("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + (run / "none").string());
    for (const auto* name : { "DISPLAY", "PULSE_SERVER", "PIPEWIRE_REMOTE", "PIPEWIRE_LATENCY" })
        _environment.emplace_back(name, nullptr);
    // Keep libdbus loaded, here and in the engine. PipeWire unloads it with the module that asks for
    // real-time priority, and LeakSanitizer then reports what libdbus still holds.
    dlopen(libdbus, RTLD_LAZY | RTLD_NODELETE);
    set("LD_PRELOAD", libdbus);
    writeConfiguration(devices);
    startPipeWire();
}

void SoundSystem::writeConfiguration(Devices devices)
{
    const auto configuration = folder() / "configuration";
    std::string objects;
    if (devices == Devices::All) {
        for (const auto* name : { "hw1", "hw2", "surround" })
            objects += "{ factory = adapter args = " + device(name) + " }\n";
    }
    writeFile(configuration / "pipewire/pipewire.conf.d/10-test.conf",
        "context.properties = { default.clock.allowed-rates = [ 44100 48000 96000 ] module.x11.bell = false "
        "}\n"
        "context.objects = [\n"
            + objects + "]\n");

    // No hardware and no portals. The session manager is configured by scripts up to 0.4 and by data from 0.5
    // on.
    if (outputOf({ "wireplumber", "--version" }).find("libwireplumber 0.4") != std::string::npos) {
        writeFile(configuration / "wireplumber/main.lua.d/51-test.lua",
            "alsa_monitor.enabled = false\nv4l2_monitor.enabled = false\nlibcamera_monitor.enabled = false\n"
            "default_access.properties[\"enable-flatpak-portal\"] = false\n");
        writeFile(
            configuration / "wireplumber/bluetooth.lua.d/51-test.lua", "bluez_monitor.enabled = false\n");
    } else {
        writeFile(configuration / "wireplumber/wireplumber.conf.d/51-test.conf",
            "wireplumber.profiles = { main = { hardware.audio = disabled hardware.bluetooth = disabled\n"
            "hardware.video-capture = disabled script.client.access-portal = disabled\n"
            "support.portal-permissionstore = disabled } }\n");
    }
}

void SoundSystem::start(std::optional<desktop::ChildProcess>& daemon, const std::string& program)
{
    // The daemons' output would hide that of the tests.
    const auto log = (folder() / (program + ".log")).string();
    daemon.emplace(std::vector<std::string> { "sh", "-c", "exec " + program + " >>\"$1\" 2>&1", "sh", log });
}

void SoundSystem::startPipeWire()
{
    const auto run = folder() / "run";
    for (const auto* socket : { "pipewire-0", "pulse/native" })
        std::filesystem::remove(run / socket);
    start(_pipewire, "pipewire");
    require(eventually([&] { return isSocket(run / "pipewire-0") || !_pipewire->running(); })
            && _pipewire->running(),
        "pipewire does not start");
    startSessionManager();
    start(_pulse, "pipewire-pulse");
    require(
        eventually([&] { return isSocket(run / "pulse/native") || !_pulse->running(); }) && _pulse->running(),
        "pipewire-pulse does not start");
}

void SoundSystem::startSessionManager()
{
    start(_sessionManager, "wireplumber");
    // It is ready when it has chosen a default; without devices, when its metadata exists.
    const auto ready = [&] {
        return _hasDevices ? !defaultSink().empty()
                           : outputOf({ "pw-metadata", "0" }).find("Found") != std::string::npos;
    };
    require(eventually([&] { return ready() || !_sessionManager->running(); }) && _sessionManager->running(),
        "wireplumber does not start");
}

void SoundSystem::killPipeWire()
{
    for (auto* daemon : { &_pipewire, &_sessionManager, &_pulse }) {
        (*daemon)->signal(SIGKILL);
        daemon->reset();
    }
}

void SoundSystem::killSessionManager()
{
    _sessionManager->signal(SIGKILL);
    _sessionManager.reset();
}

void SoundSystem::unplug(const std::string& device)
{
    const auto id = node(device);
    require(id.has_value(), "there is no such device");
    outputOf({ "pw-cli", "destroy", std::to_string(*id) });
    require(eventually([&] { return !node(device); }), "the device stays");
}

void SoundSystem::plugIn(const std::string& name)
{
    outputOf({ "pw-cli", "create-node", "adapter", device(name) });
    require(eventually([&] { return node(name).has_value(); }), "the device does not come");
}

void SoundSystem::chooseDefault(const std::string& sink)
{
    setMetadata(
        "default", 0, "default.configured.audio.sink", Json { { "name", sink } }.dump(), "Spa:String:JSON");
}

std::string SoundSystem::defaultSink()
{
    const auto value = metadata(0, "default.audio.sink");
    return value ? Json::parse(*value).value("name", "") : "";
}

bool SoundSystem::waitForDefault(const std::string& sink)
{
    return eventually([&] { return defaultSink() == sink; });
}

void SoundSystem::moveStream(std::uint32_t stream, const std::string& sink)
{
    const auto id = node(sink).value();
    std::string serial;
    for (const auto& object : graph()) {
        if (object.at("id") == id)
            serial = object.at("info").at("props").at("object.serial").dump();
    }
    setMetadata("default", stream, "target.node", std::to_string(id), "Spa:Id");
    setMetadata("default", stream, "target.object", serial, "Spa:Id");
}

void SoundSystem::moveStreamToDefault(std::uint32_t stream)
{
    setMetadata("default", stream, "target.node", "-1", "Spa:Id");
    setMetadata("default", stream, "target.object", "-1", "Spa:Id");
}

std::string SoundSystem::report()
{
    std::string report;
    const auto add = [&](const std::string& name, std::optional<desktop::ChildProcess>& daemon) {
        const auto status = daemon ? daemon->exitStatus(std::chrono::milliseconds(0)) : std::nullopt;
        report += name
            + (status        ? " ended with " + std::to_string(*status)
                    : daemon ? " runs"
                             : " was ended")
            + "\n" + readFile(folder() / (name + ".log"));
    };
    add("pipewire", _pipewire);
    add("wireplumber", _sessionManager);
    add("pipewire-pulse", _pulse);
    return report + outputOf({ "pw-link", "-l" }) + outputOf({ "pw-metadata" });
}

nlohmann::json SoundSystem::graph()
{
    auto dump = Json::parse(outputOf({ "pw-dump" }), nullptr, false);
    return dump.is_array() ? dump : Json::array();
}

std::optional<std::uint32_t> SoundSystem::node(const std::string& name)
{
    std::optional<std::uint32_t> newest;
    std::uint64_t newestSerial = 0;
    for (const auto& object : graph()) {
        if (object.value("type", "") != "PipeWire:Interface:Node")
            continue;
        const auto& properties = object.at("info").at("props");
        const auto serial = properties.value("object.serial", std::uint64_t { 0 });
        if (properties.value("node.name", "") == name && serial >= newestSerial) {
            newest = object.at("id").get<std::uint32_t>();
            newestSerial = serial;
        }
    }
    return newest;
}

std::set<std::string> SoundSystem::targetsOf(const std::string& nodeName)
{
    std::map<std::uint32_t, std::string> names;
    std::set<std::string> targets;
    const auto objects = graph();
    for (const auto& object : objects) {
        if (object.value("type", "") == "PipeWire:Interface:Node")
            names[object.at("id")] = object.at("info").at("props").value("node.name", "");
    }
    for (const auto& object : objects) {
        if (object.value("type", "") != "PipeWire:Interface:Link")
            continue;
        const auto& info = object.at("info");
        if (names[info.at("output-node-id")] == nodeName)
            targets.insert(names[info.at("input-node-id")]);
    }
    return targets;
}

bool SoundSystem::waitForTargets(const std::string& nodeName, const std::set<std::string>& targets)
{
    return eventually([&] { return targetsOf(nodeName) == targets; });
}

std::optional<std::string> SoundSystem::metadata(std::uint32_t subject, const std::string& key)
{
    const auto output = outputOf({ "pw-metadata", "-n", "default", std::to_string(subject), key });
    const std::string before = "value:'";
    const auto begin = output.find(before);
    if (begin == std::string::npos)
        return std::nullopt;
    const auto end = output.find("' type:", begin);
    return output.substr(begin + before.size(), end - begin - before.size());
}

void SoundSystem::setMetadata(const std::string& name, std::uint32_t subject, const std::string& key,
    const std::string& value, const std::string& type)
{
    outputOf({ "pw-metadata", "-n", name, "--", std::to_string(subject), key, value, type });
}

} // namespace brimsound::tests
