// Presets from and for other equalizers.
#include "desktop/presets/Commands.h"
#include "desktop/presets/Options.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/process/StandardStreams.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace brimsound;
using namespace brimsound::presets;

namespace {

constexpr int usageError = 2;

int fail(const std::exception& error, int status)
{
    std::fprintf(stderr, "brimsound-presets: %s\n", error.what());
    return status;
}

void throwIfOutputFailed()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        throw std::runtime_error(std::string("the output cannot be written: ") + std::strerror(errno));
}

} // namespace

int main(int argumentCount, char** arguments)
{
    desktop::openMissingStandardStreams();
    try {
        const auto options = readOptions(argumentCount, arguments);
        int status = EXIT_SUCCESS;
        if (options) {
            if (options->root)
                desktop::setDeviceRoot(std::filesystem::absolute(*options->root));
            status = run(*options);
        }
        throwIfOutputFailed();
        return status;
    } catch (const UsageError& error) {
        return fail(error, usageError);
    } catch (const std::exception& error) {
        return fail(error, EXIT_FAILURE);
    }
}
