#include "platform/System/sysctl.h"

#include "platform/desktop/Foundation/FileContents.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <sys/utsname.h>

namespace brimsound {

namespace {

constexpr auto productNameFile = "/sys/class/dmi/id/product_name";
constexpr std::size_t longestProductName = 4096;

std::string_view trimmed(std::string_view text)
{
    constexpr auto blanks = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    return begin == std::string_view::npos ? ""
                                           : text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

bool isPrintable(std::string_view text)
{
    return std::ranges::all_of(text, [](char character) { return character >= ' ' && character <= '~'; });
}

/// Empty when the firmware provides no printable name.
std::string productName()
{
    const auto bytes = desktop::readRegularFile(productNameFile, longestProductName);
    if (!bytes)
        return {};
    const std::string text(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    const auto name = trimmed(text);
    return std::string(isPrintable(name) ? name : "");
}

std::string architecture()
{
    utsname names {};
    return uname(&names) == 0 ? names.machine : "unknown";
}

} // namespace

int sysctlbyname(const char* name, void* value, std::size_t* size, void* newValue, std::size_t newSize)
{
    if (name != std::string_view("hw.machine") || !size || newValue || newSize > 0)
        return -1;
    auto machine = productName();
    if (machine.empty())
        machine = architecture();

    const auto needed = machine.size() + 1;
    if (value) {
        if (*size < needed)
            return -1;
        std::copy_n(machine.c_str(), needed, static_cast<char*>(value));
    }
    *size = needed;
    return 0;
}

} // namespace brimsound
