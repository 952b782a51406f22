#include "settings/run_cmd.h"

#include "platform/System/process.h"
#include "settings/Log.h"

#include <array>
#include <cstdio>

namespace brimsound {

std::optional<NSData> run_cmd(const char* command)
{
    NSData output;
    auto* stream = brimsound::popen(command, "r");
    if (!stream) {
        logLine("Failed to run command\n");
        return std::nullopt;
    }
    std::array<char, 1024> buffer {};
    while (std::fgets(buffer.data(), static_cast<int>(buffer.size()), stream))
        appendText(output, buffer.data());
    brimsound::pclose(stream);
    return output;
}

} // namespace brimsound
