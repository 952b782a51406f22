#include "platform/Foundation/NSData.h"

#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Foundation/FileContents.h"

#include <span>

namespace brimsound {

namespace {

// Whole files are attached to mails or kept in memory. A larger file is assumed to be a mistake.
constexpr std::size_t largestFile = std::size_t { 128 } << 20;

} // namespace

std::optional<NSData> dataWithContentsOfFile(const std::string& path)
{
    return desktop::readRegularFile(desktop::resolveDevicePath(path), largestFile);
}

void appendText(NSData& data, std::string_view text)
{
    const auto bytes = std::as_bytes(std::span(text));
    data.insert(data.end(), bytes.begin(), bytes.end());
}

} // namespace brimsound
