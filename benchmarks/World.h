// What a pane that is measured lives in: a bus and files of its own, and a running media server.
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
    /// The app's own, which prints nothing that somebody would have to read.
    desktop::MediaServer server;

    World();

    std::filesystem::path preferencesFile() const;
};

/// Preferences as a pane leaves them, with that many presets.
PropertyList::Dictionary preferencesWithPresets(std::size_t count);

/// One "equalizer_send" with eleven values and its reply, by plain sd-bus calls on the process's connection.
void sendBare(const std::vector<double>& values);

/// Tells everybody on the bus that the settings changed, by a plain sd-bus call.
void announceBare();

/// Overwrites the file in place, by plain system calls.
void writeBare(const std::filesystem::path&, const std::string& bytes);

std::string bytesOf(const std::filesystem::path&);

} // namespace brimsound::bench
