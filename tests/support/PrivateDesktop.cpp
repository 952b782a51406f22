#include "tests/support/PrivateDesktop.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <gio/gio.h>
#include <iterator>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

namespace brimsound::tests {

namespace fs = std::filesystem;

namespace {

/// The home folder of this process, removed with the object.
class Home {
public:
    Home()
        : path(make())
    {
        const auto set = [](const char* name, const fs::path& value) { setenv(name, value.c_str(), 1); };
        set("HOME", path);
        set("XDG_DATA_HOME", path / ".local/share");
        set("XDG_CONFIG_HOME", path / ".config");
        set("XDG_CACHE_HOME", path / ".cache");
        set("XDG_DATA_DIRS", path / "none");
        set("XDG_CONFIG_DIRS", path / "none");
        // An unknown desktop, so that no other process is asked.
        set("XDG_CURRENT_DESKTOP", "X-Generic");
        set("DISPLAY", ":nowhere");
        set("DBUS_SESSION_BUS_ADDRESS", "disabled:");
        for (const auto* name : { "BROWSER", "MAILER", "XDG_RUNTIME_DIR", "WAYLAND_DISPLAY" })
            unsetenv(name);
    }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;
    ~Home()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }

    const fs::path path;

private:
    static fs::path make()
    {
        auto path = (fs::temp_directory_path() / "brimsound-home-XXXXXX").string();
        if (!mkdtemp(path.data()))
            throw std::system_error(errno, std::generic_category(), path);
        return path;
    }
};

const fs::path& homePath()
{
    static const Home home;
    return home.path;
}

fs::path programsFolder()
{
    return homePath() / ".local/share/applications";
}

std::string programName(std::string mimeType)
{
    std::ranges::replace(mimeType, '/', '-');
    return "test-" + mimeType;
}

fs::path recordOf(const std::string& mimeType)
{
    return homePath() / (programName(mimeType) + ".opened");
}

/// Waits until the condition is true, with a very long timeout. Returns whether it is.
bool eventually(const std::function<bool()>& condition)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

/// A thread of GLib watches the folders for new programs.
void waitUntilKnown(const std::string& mimeType, bool known)
{
    const auto isKnown = [&] {
        auto* program = g_app_info_get_default_for_type(mimeType.c_str(), false);
        const bool found = program != nullptr;
        g_clear_object(&program);
        return found;
    };
    if (!eventually([&] { return isKnown() == known; }))
        throw std::runtime_error("GLib does not notice the programs for " + mimeType);
}

void write(const fs::path& path, const std::string& text)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

} // namespace

PrivateDesktop::PrivateDesktop()
{
    fs::create_directories(programsFolder());
    writeDefaults();
}

PrivateDesktop::~PrivateDesktop()
{
    // The folders themselves stay, because GLib watches them.
    std::error_code ignored;
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(home())) {
        if (!entry.is_directory())
            files.push_back(entry.path());
    }
    for (const auto& file : files)
        fs::remove(file, ignored);
    fs::remove_all(cache(), ignored);
}

const fs::path& PrivateDesktop::home() const
{
    return homePath();
}

void PrivateDesktop::addProgram(const std::string& mimeType, const std::string& command)
{
    write(programsFolder() / (programName(mimeType) + ".desktop"),
        "[Desktop Entry]\nType=Application\nName=" + programName(mimeType) + "\nExec=" + command
            + "\nMimeType=" + mimeType + ";\n");
    writeDefaults();
    waitUntilKnown(mimeType, true);
}

void PrivateDesktop::addRecordingProgram(const std::string& mimeType)
{
    const auto script = home() / (programName(mimeType) + ".sh");
    const auto record = recordOf(mimeType).string();
    write(script, "printf %s \"$1\" > " + record + ".new && mv " + record + ".new " + record + "\n");
    addProgram(mimeType, "/bin/sh " + script.string() + " %u");
}

void PrivateDesktop::removeProgram(const std::string& mimeType)
{
    fs::remove(programsFolder() / (programName(mimeType) + ".desktop"));
    writeDefaults();
    waitUntilKnown(mimeType, false);
}

std::string PrivateDesktop::openedBy(const std::string& mimeType) const
{
    return appears(recordOf(mimeType)) ? contentsOf(recordOf(mimeType)) : "";
}

void PrivateDesktop::writeDefaults() const
{
    std::string defaults = "[Default Applications]\n";
    for (const auto& entry : fs::directory_iterator(programsFolder())) {
        auto lines = contentsOf(entry.path());
        const auto type = lines.substr(lines.find("MimeType=") + 9);
        defaults += type.substr(0, type.find(';')) + "=" + entry.path().filename().string() + "\n";
    }
    write(home() / ".config/mimeapps.list", defaults);
}

bool appears(const fs::path& path)
{
    return eventually([&] { return fs::exists(path); });
}

std::string contentsOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

} // namespace brimsound::tests
