#include "platform/desktop/Foundation/DeviceRoot.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brimsound::desktop {

namespace fs = std::filesystem;

namespace {

fs::path homeFolder()
{
    if (const char* home = std::getenv("HOME"); home && *home)
        return home;
    const passwd* user = getpwuid(getuid());
    return user ? user->pw_dir : "/";
}

fs::path userDataFolder()
{
    // The XDG specification requires absolute paths and says to ignore others.
    if (const char* folder = std::getenv("XDG_DATA_HOME"); folder && *folder == '/')
        return folder;
    return homeFolder() / ".local/share";
}

fs::path& mutableDeviceRoot()
{
    static fs::path root = userDataFolder() / "brimsound";
    return root;
}

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
    return mutableDeviceRoot();
}

void setDeviceRoot(fs::path root)
{
    mutableDeviceRoot() = std::move(root);
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
