#include "desktop/engine/pipewire/PlayingStream.h"

#include "desktop/engine/pipewire/Dictionary.h"

#include <spa/param/format-utils.h>
#include <spa/param/param.h>

#include <utility>

namespace brimsound::engine {

PlayingStream::PlayingStream(Proxy proxy, pw_core* core, std::function<void(const StreamProperties&)> changed)
    : _proxy(std::move(proxy))
    , _changed(std::move(changed))
{
    static constexpr pw_node_events nodeEvents {
        .version = PW_VERSION_NODE_EVENTS,
        .info = info,
        .param = param,
    };
    static constexpr auto coreEvents = [] {
        pw_core_events events {};
        events.version = PW_VERSION_CORE_EVENTS;
        events.done = done;
        return events;
    }();
    auto* node = reinterpret_cast<pw_node*>(_proxy.get());
    pw_node_add_listener(node, &_nodeListener, &nodeEvents, this);
    pw_core_add_listener(core, &_coreListener, &coreEvents, this);
    pw_node_enum_params(node, 0, SPA_PARAM_EnumFormat, 0, UINT32_MAX, nullptr);
    _sync = pw_core_sync(core, PW_ID_CORE, 0);
}

void PlayingStream::info(void* self, const pw_node_info* info)
{
    auto& stream = *static_cast<PlayingStream*>(self);
    if (!(info->change_mask & PW_NODE_CHANGE_MASK_PROPS))
        return;
    stream._properties.values = toMap(info->props);
    stream.tell();
}

void PlayingStream::param(void* self, int, std::uint32_t id, std::uint32_t, std::uint32_t, const spa_pod* pod)
{
    auto& stream = *static_cast<PlayingStream*>(self);
    std::uint32_t mediaType = 0;
    std::uint32_t mediaSubtype = 0;
    if (id != SPA_PARAM_EnumFormat || spa_format_parse(pod, &mediaType, &mediaSubtype) < 0)
        return;
    (mediaSubtype == SPA_MEDIA_SUBTYPE_raw ? stream._offersRaw : stream._offersEncoded) = true;
}

void PlayingStream::done(void* self, std::uint32_t, int sequence)
{
    auto& stream = *static_cast<PlayingStream*>(self);
    if (sequence != stream._sync || stream._hasFormats)
        return;
    // The properties were received before this reply.
    stream._hasFormats = true;
    stream._properties.encoded = stream._offersEncoded && !stream._offersRaw;
    stream.tell();
}

void PlayingStream::tell()
{
    if (_hasFormats)
        _changed(_properties);
}

} // namespace brimsound::engine
