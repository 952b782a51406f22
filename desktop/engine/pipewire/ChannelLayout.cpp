#include "desktop/engine/pipewire/ChannelLayout.h"

#include "desktop/engine/audio/EqualizerProcessor.h"

#include <spa/param/audio/type-info.h>
#include <spa/utils/type.h>

#include <algorithm>
#include <span>
#include <string_view>

namespace brimsound::engine {

namespace {

/// Returns "FL" for "Spa:Enum:AudioChannel:FL".
std::string_view shortName(const char* name)
{
    const std::string_view whole(name);
    return whole.substr(whole.rfind(':') + 1);
}

std::span<const spa_type_info> positions()
{
    const auto* end = spa_type_audio_channel;
    while (end->name)
        ++end;
    return { spa_type_audio_channel, end };
}

std::uint32_t positionOf(std::string_view name)
{
    for (const auto& position : positions()) {
        if (shortName(position.name) == name)
            return position.type;
    }
    return SPA_AUDIO_CHANNEL_UNKNOWN;
}

std::string nameOf(std::uint32_t channel)
{
    for (const auto& position : positions()) {
        if (position.type == channel)
            return std::string(shortName(position.name));
    }
    return "UNK";
}

bool hasPlace(std::uint32_t position)
{
    return position >= SPA_AUDIO_CHANNEL_MONO && position < SPA_AUDIO_CHANNEL_START_Aux;
}

} // namespace

std::optional<ChannelLayout> layoutFor(const ChannelNames& names)
{
    if (names.empty())
        return std::nullopt;
    ChannelLayout layout;
    for (const auto& name : names)
        layout.push_back(positionOf(name));
    if (layout.size() > audio::maximumChannels || !std::ranges::all_of(layout, hasPlace))
        return stereo;
    return layout;
}

ChannelNames namesOf(const ChannelLayout& layout)
{
    ChannelNames names;
    for (const auto channel : layout)
        names.push_back(nameOf(channel));
    return names;
}

} // namespace brimsound::engine
