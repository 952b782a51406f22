#include "desktop/presets/PresetFile.h"

#include "platform/desktop/Foundation/FileContents.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>

namespace brimsound::presets {

namespace {

namespace fs = std::filesystem;

void createFile(const fs::path& path, std::string_view contents)
{
    // "x" fails when anything of that name exists, also a link to nothing.
    auto* file = std::fopen(path.c_str(), "wx");
    const bool isOpen = file != nullptr;
    bool isWritten = isOpen && std::fwrite(contents.data(), 1, contents.size(), file) == contents.size();
    // A full disk may be reported only here.
    isWritten = isOpen && std::fclose(file) == 0 && isWritten;
    if (isWritten)
        return;
    const std::string reason = std::strerror(errno);
    std::error_code ignored;
    if (isOpen)
        fs::remove(path, ignored);
    throw std::runtime_error("\"" + path.string() + "\" cannot be written: " + reason);
}

} // namespace

void writePresetFile(const fs::path& path, std::string_view contents, Existing existing)
{
    std::error_code ignored;
    const bool exists = fs::exists(fs::symlink_status(path, ignored));
    if (!exists)
        return createFile(path, contents);
    if (existing == Existing::Kept)
        throw std::runtime_error("\"" + path.string() + "\" exists; --force replaces it");
    if (!desktop::overwriteFile(path, std::as_bytes(std::span(contents))))
        throw std::runtime_error("\"" + path.string() + "\" cannot be written");
}

} // namespace brimsound::presets
