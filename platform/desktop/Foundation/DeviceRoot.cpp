#include "platform/desktop/Foundation/DeviceRoot.h"

#include <algorithm>
#include <cerrno>
#include <glib.h>
#include <sys/stat.h>

namespace brimsound::desktop {

namespace fs = std::filesystem;

namespace {

fs::path userDataFolder()
{
    const fs::path folder = g_get_user_data_dir();
    // GLib also returns an XDG_DATA_HOME that is a relative path, which programs are to ignore.
    return folder.is_absolute() ? folder : fs::path(g_get_home_dir()) / ".local/share";
}

/// Empty until it is set or asked for: GLib reads the environment once, when it is asked first.
fs::path root;

const fs::path& installedResources()
{
    static const fs::path folder
        = fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "share/brimsound";
    return folder;
}

bool startsWith(const fs::path& path, const fs::path& folder)
{
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

} // namespace

const fs::path& deviceRoot()
{
    if (root.empty())
        root = userDataFolder() / "brimsound";
    return root;
}

void setDeviceRoot(fs::path folder)
{
    root = std::move(folder);
}

void prepareDeviceRoot()
{
    fs::path folder;
    for (const auto& name : resolveDevicePath("/var/mobile/Library/Preferences")) {
        folder /= name;
        if (mkdir(folder.c_str(), S_IRWXU) == 0)
            continue;
        const std::error_code error(errno, std::generic_category());
        if (!fs::is_directory(folder))
            throw fs::filesystem_error("cannot make the folder", folder, error);
    }
}

fs::path resolveDevicePath(std::string_view devicePath)
{
    // A normalized absolute path contains no "..".
    const auto path = ("/" / fs::path(devicePath)).lexically_normal();
    static const fs::path bundle = "/Library/PreferenceBundles/BrimsoundSettings.bundle";
    if (startsWith(path, bundle))
        return installedResources() / path.lexically_relative(bundle.parent_path());
    return deviceRoot() / path.relative_path();
}

} // namespace brimsound::desktop
