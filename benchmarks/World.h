// The environment of a measured pane: a bus, files, and a running media server.
#pragma once

#include "desktop/brimsound/MediaServer.h"
#include "platform/Foundation/PropertyList.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace brimsound::bench {

struct World {
    tests::TemporaryRoot root;
    tests::TestBus bus;
    /// The app's own server, which prints nothing.
    desktop::MediaServer server;

    World();

    std::filesystem::path preferencesFile() const;
};

/// Preferences as a pane writes them, with that many presets.
PropertyList::Dictionary preferencesWithPresets(std::size_t count);

/// Sends an "equalizer_send" message with eleven values and waits for its reply, by plain sd-bus calls on the
/// process's connection.
void sendBare(const std::vector<double>& values);

/// Posts the settings-finished notification by a plain sd-bus call.
void announceBare();

/// Overwrites the file in place, by plain system calls.
void writeBare(const std::filesystem::path&, const std::string& bytes);

std::string bytesOf(const std::filesystem::path&);

} // namespace brimsound::bench
