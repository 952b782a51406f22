#include "tests/support/sound/EncodedStream.h"

#include <spa/param/audio/format-utils.h>
#include <spa/param/audio/iec958.h>
#include <spa/param/format-utils.h>
#include <spa/param/param.h>
#include <spa/pod/builder.h>

#include <array>
#include <cstdint>

namespace brimsound::tests {

EncodedStream::EncodedStream(Offers offers)
{
    static constexpr auto events = [] {
        pw_stream_events wanted {};
        wanted.version = PW_VERSION_STREAM_EVENTS;
        return wanted;
    }();
    pw_init(nullptr, nullptr);
    _loop = pw_thread_loop_new("encoded", nullptr);
    _stream = pw_stream_new_simple(pw_thread_loop_get_loop(_loop), "encoded",
        pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Playback", PW_KEY_NODE_NAME,
            "encoded", nullptr),
        &events, nullptr);
    std::array<std::uint8_t, 1024> bytes {};
    spa_pod_builder builder {};
    spa_pod_builder_init(&builder, bytes.data(), bytes.size());
    const auto* encoded = static_cast<const spa_pod*>(spa_pod_builder_add_object(&builder,
        SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_audio),
        SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_iec958), SPA_FORMAT_AUDIO_iec958Codec,
        SPA_POD_Id(SPA_AUDIO_IEC958_CODEC_AC3), SPA_FORMAT_AUDIO_rate, SPA_POD_Int(48000)));
    spa_audio_info_raw format {};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.rate = 48000;
    format.channels = 2;
    const spa_pod* formats[]
        = { encoded, spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format) };
    pw_stream_connect(_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
        static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS), formats,
        offers == Offers::RawToo ? 2 : 1);
    pw_thread_loop_start(_loop);
}

EncodedStream::~EncodedStream()
{
    pw_thread_loop_stop(_loop);
    pw_stream_destroy(_stream);
    pw_thread_loop_destroy(_loop);
    pw_deinit();
}

} // namespace brimsound::tests
