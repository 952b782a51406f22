#include "platform/desktop/System/SystemVersion.h"

#include <glib.h>
#include <memory>
#include <sys/utsname.h>

namespace brimsound::desktop {

std::string systemVersion()
{
    const std::unique_ptr<char, decltype(&g_free)> version(g_get_os_info(G_OS_INFO_KEY_VERSION_ID), g_free);
    if (version && *version)
        return version.get();
    utsname names {};
    return uname(&names) == 0 ? names.release : "unknown";
}

} // namespace brimsound::desktop
