#include "settings/diagnosticText.h"

#include "include/Configuration.h"

#include <string_view>

namespace brimsound {

namespace {

/// The number of UTF-16 units in the UTF-8 text.
std::size_t lengthInCharacters(std::string_view text)
{
    const auto units = [](char byte) -> std::size_t {
        const auto value = static_cast<unsigned char>(byte);
        const bool isContinuation = (value & 0xc0) == 0x80;
        return isContinuation ? 0 : value >= 0xf0 ? 2 : 1;
    };
    std::size_t length = 0;
    for (const char byte : text)
        length += units(byte);
    return length;
}

void appendByLength(NSData& data, std::string_view text)
{
    appendText(data, text.substr(0, lengthInCharacters(text)));
}

} // namespace

NSData diagnosticText(const std::string& device, const std::vector<std::string>& languages,
    const std::optional<NSData>& packages)
{
    NSData text;
    appendByLength(text, device);
    appendText(text, std::string(" (BRS ") + version + ") ");
    if (!languages.empty())
        appendByLength(text, languages.front());
    appendText(text, "\n");
    if (packages)
        text.insert(text.end(), packages->begin(), packages->end());
    return text;
}

} // namespace brimsound
