#include "platform/desktop/UIKit/UrlOpener.h"

#include "platform/desktop/gio/GObjectPointer.h"

#include <gio/gio.h>

namespace brimsound::desktop {

namespace {

using Program = GObjectPointer<GAppInfo>;

Program programFor(const std::string& url)
{
    const GText scheme(g_uri_parse_scheme(url.c_str()));
    return Program(scheme ? g_app_info_get_default_for_uri_scheme(scheme.get()) : nullptr);
}

bool launch(const Program& program, const char* uri)
{
    GList uris { const_cast<char*>(uri), nullptr, nullptr };
    return program && g_app_info_launch_uris(program.get(), &uris, nullptr, nullptr);
}

} // namespace

bool hasProgramFor(const std::string& url)
{
    return programFor(url) != nullptr;
}

bool openWithProgram(const std::string& url)
{
    return launch(programFor(url), url.c_str());
}

bool openFileWithProgram(const std::string& path, const std::string& mimeType)
{
    const GText uri(g_filename_to_uri(path.c_str(), nullptr, nullptr));
    return uri && launch(Program(g_app_info_get_default_for_type(mimeType.c_str(), false)), uri.get());
}

} // namespace brimsound::desktop
