#include "platform/desktop/MessageUI/MailFolder.h"

#include "platform/desktop/Foundation/FileContents.h"

#include <chrono>
#include <cstdlib>
#include <glib.h>
#include <sys/stat.h>

namespace brimsound::desktop {

namespace fs = std::filesystem;

namespace {

constexpr auto keptFor = std::chrono::hours(24);
constexpr auto prefix = "mail-";

std::optional<fs::path> makeFolder(const fs::path& pattern)
{
    auto path = pattern.string() + "XXXXXX";
    if (!mkdtemp(path.data()))
        return std::nullopt;
    return path;
}

/// Ignores errors: a folder may belong to another user.
void removeOldFolders(const fs::path& parent)
{
    std::error_code ignored;
    const auto oldest = fs::file_time_type::clock::now() - keptFor;
    for (const auto& entry : fs::directory_iterator(parent, ignored)) {
        const auto changed = entry.last_write_time(ignored);
        if (!ignored && changed < oldest && entry.path().filename().string().starts_with(prefix))
            fs::remove_all(entry.path(), ignored);
    }
}

} // namespace

std::string plainFileName(const std::string& name)
{
    const auto plain = fs::path(name).filename().string();
    return plain.empty() || plain == "." || plain == ".." ? "attachment" : plain;
}

std::optional<fs::path> makeMailFolder()
{
    const auto parent = fs::path(g_get_user_cache_dir()) / "brimsound";
    if (g_mkdir_with_parents(parent.c_str(), S_IRWXU) != 0)
        return std::nullopt;
    removeOldFolders(parent);
    return makeFolder(parent / prefix);
}

std::optional<fs::path> addFile(
    const fs::path& folder, const std::string& name, std::span<const std::byte> contents)
{
    const auto place = makeFolder(folder / "");
    if (!place)
        return std::nullopt;
    auto path = *place / plainFileName(name);
    if (!overwriteFile(path, contents))
        return std::nullopt;
    return path;
}

} // namespace brimsound::desktop
