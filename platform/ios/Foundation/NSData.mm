#include "platform/Foundation/NSData.h"

#include "platform/ios/Foundation/NativeText.h"

namespace brimsound {

std::optional<NSData> dataWithContentsOfFile(const std::string& path)
{
    ::NSData* native = [::NSData dataWithContentsOfFile:ios::nativeText(path)];
    if (!native)
        return std::nullopt;
    const auto* bytes = static_cast<const std::byte*>([native bytes]);
    return NSData(bytes, bytes + [native length]);
}

void appendText(NSData& data, std::string_view text)
{
    const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
    data.insert(data.end(), bytes, bytes + text.size());
}

} // namespace brimsound
