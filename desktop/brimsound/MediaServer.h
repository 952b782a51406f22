// The media server that the app brings along.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <filesystem>
#include <memory>

namespace brimsound::desktop {

/// Starts mediaserverd from the program's own folder with the device root, and waits until it answers to the
/// center's name, or until one that another program started in the meantime does. Null when a media server is
/// on the bus already. Throws std::runtime_error when it cannot be started.
std::unique_ptr<ChildProcess> startMediaServerIfMissing(
    const std::filesystem::path& programFolder, const std::filesystem::path& root);

} // namespace brimsound::desktop
