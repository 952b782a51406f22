// The equalizer for sound files, with the same filters as for the desktop's sound.
#include "desktop/presets/PresetStore.h"
#include "desktop/render/Gains.h"
#include "desktop/render/Options.h"
#include "desktop/render/Rendering.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/process/StandardStreams.h"

#include <cstdio>
#include <cstdlib>

using namespace brimsound;
using namespace brimsound::render;

namespace {

constexpr int usageError = 2;

void run(const Options& options)
{
    if (options.root)
        desktop::setDeviceRoot(*options.root);
    if (options.listPresets) {
        for (const auto& name : presets::PresetStore().names())
            std::puts(name.c_str());
        return;
    }
    Setting setting { .limiter = options.limiter };
    setting.gains = options.preset ? presets::PresetStore().gainsOf(*options.preset) : *options.gains;
    setting.preamp = options.preamp ? *options.preamp : autoPreamp(setting.gains);
    renderFile(options.in, options.out, setting);
}

int fail(const std::exception& error, int status)
{
    std::fprintf(stderr, "brimsound-render: %s\n", error.what());
    return status;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    desktop::openMissingStandardStreams();
    try {
        if (const auto options = readOptions(argumentCount, arguments))
            run(*options);
        return EXIT_SUCCESS;
    } catch (const UsageError& error) {
        return fail(error, usageError);
    } catch (const std::exception& error) {
        return fail(error, EXIT_FAILURE);
    }
}
