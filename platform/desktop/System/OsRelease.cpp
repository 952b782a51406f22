#include "platform/desktop/System/OsRelease.h"

#include "platform/desktop/Foundation/FileContents.h"

#include <sys/utsname.h>

namespace brimsound::desktop {

namespace {

constexpr std::size_t longestOsRelease = std::size_t { 64 } << 10;

/// Removes shell quoting from a word.
std::string unquoted(std::string_view word)
{
    std::string text;
    char quote = 0;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char character = word[i];
        if (character == quote)
            quote = 0;
        else if (!quote && (character == '"' || character == '\''))
            quote = character;
        else if (!quote && (character == ' ' || character == '\t' || character == '\r'))
            break;
        else if (character == '\\' && quote != '\'' && i + 1 < word.size())
            text += word[++i];
        else
            text += character;
    }
    return text;
}

std::string kernelRelease()
{
    utsname names {};
    return uname(&names) == 0 ? names.release : "unknown";
}

std::string versionOfDistribution()
{
    // Only the first of these files that exists is read.
    for (const auto* path : { "/etc/os-release", "/usr/lib/os-release" }) {
        if (const auto bytes = readRegularFile(path, longestOsRelease))
            return valueInOsRelease(
                { reinterpret_cast<const char*>(bytes->data()), bytes->size() }, "VERSION_ID");
    }
    return {};
}

} // namespace

std::string systemVersion()
{
    const auto version = versionOfDistribution();
    return version.empty() ? kernelRelease() : version;
}

std::string valueInOsRelease(std::string_view text, std::string_view name)
{
    std::string value;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        // As in the shell, the last assignment wins.
        if (line.starts_with(name) && line.substr(name.size()).starts_with('='))
            value = unquoted(line.substr(name.size() + 1));
    }
    return value;
}

} // namespace brimsound::desktop
