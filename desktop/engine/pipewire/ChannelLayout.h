// The channels of the equalizer.
#pragma once

#include "desktop/engine/pipewire/DeviceGraph.h"

#include <spa/param/audio/raw.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace brimsound::engine {

/// Positions as PipeWire numbers them (SPA_AUDIO_CHANNEL_FL and so on), in channel order.
using ChannelLayout = std::vector<std::uint32_t>;

inline const ChannelLayout stereo { SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR };

/// The layout for a device with these channels. It is the device's own layout, so that every speaker keeps
/// its sound and nothing is mixed twice. Nothing while the channels are unknown; stereo for devices whose
/// channels have no positions and for devices with more than eight.
std::optional<ChannelLayout> layoutFor(const ChannelNames&);

ChannelNames namesOf(const ChannelLayout&);

} // namespace brimsound::engine
