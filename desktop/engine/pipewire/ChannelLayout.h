// The channels of the equalizer.
#pragma once

#include "desktop/engine/pipewire/DeviceGraph.h"

#include <spa/param/audio/raw.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace brimsound::engine {

/// Positions as PipeWire numbers them, SPA_AUDIO_CHANNEL_FL and so on, in their order.
using ChannelLayout = std::vector<std::uint32_t>;

inline const ChannelLayout stereo { SPA_AUDIO_CHANNEL_FL, SPA_AUDIO_CHANNEL_FR };

/// The layout for a device with these channels: its own, so that every speaker keeps its sound and nothing is
/// mixed twice. Nothing when there is none to tell yet, stereo for devices whose channels have no places and
/// for those of more than eight.
std::optional<ChannelLayout> layoutFor(const ChannelNames&);

ChannelNames namesOf(const ChannelLayout&);

} // namespace brimsound::engine
