#include "tests/support/sound/Recorder.h"

#include "desktop/engine/pipewire/ChannelLayout.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/sound/SoundSystem.h"
#include "tests/support/sound/Wait.h"

#include <spa/param/audio/format-utils.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>

namespace brimsound::tests {

namespace {

constexpr unsigned rate = 48000;
constexpr std::size_t longest = std::size_t { 60 } * rate;

std::string uniqueName()
{
    static int count = 0;
    return "recorder-" + std::to_string(++count);
}

} // namespace

Recorder::Recorder(const std::string& device, const std::vector<std::string>& channels, unsigned frames)
    : _name(uniqueName())
    , _channels(channels.size())
    , _samples(longest * channels.size())
{
    // A session manager may connect the recorder to another device if this one is new.
    for (int attempt = 0; attempt < 5; ++attempt) {
        open(device, channels, frames);
        if (eventually([this] { return position() > 0; }) && isLinkedTo(device))
            return;
        close();
        _filled = 0;
    }
    throw std::runtime_error("nothing comes from the device " + device);
}

void Recorder::open(const std::string& device, const std::vector<std::string>& channels, unsigned frames)
{
    static constexpr auto events = [] {
        pw_stream_events wanted {};
        wanted.version = PW_VERSION_STREAM_EVENTS;
        wanted.process = process;
        return wanted;
    }();
    // The recording thread needs real-time priority, as playing threads have. Later versions set it
    // automatically.
#if !PW_CHECK_VERSION(1, 4, 0)
    const EnvironmentVariable configuration("PIPEWIRE_CONFIG_NAME", "client-rt.conf");
#endif
    pw_init(nullptr, nullptr);
    _loop = pw_thread_loop_new("recorder", nullptr);
    const auto latency = std::to_string(frames) + "/" + std::to_string(rate);
    // The recorder stays with the device when the default changes.
    _stream = pw_stream_new_simple(pw_thread_loop_get_loop(_loop), "recorder",
        pw_properties_new(PW_KEY_TARGET_OBJECT, device.c_str(), PW_KEY_STREAM_CAPTURE_SINK, "true",
            PW_KEY_NODE_DONT_RECONNECT, "true", PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY, "Capture",
            PW_KEY_NODE_LATENCY, latency.c_str(), PW_KEY_NODE_NAME, _name.c_str(), "state.restore-props",
            "false", nullptr),
        &events, this);

    spa_audio_info_raw format {};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.rate = rate;
    format.channels = static_cast<std::uint32_t>(_channels);
    std::ranges::copy(*engine::layoutFor(channels), format.position);
    std::array<std::uint8_t, 1024> bytes {};
    spa_pod_builder builder {};
    spa_pod_builder_init(&builder, bytes.data(), bytes.size());
    const spa_pod* parameters[] = { spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format) };
    const auto flags = static_cast<pw_stream_flags>(
        PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS);
    pw_stream_connect(_stream, PW_DIRECTION_INPUT, PW_ID_ANY, flags, parameters, 1);
    pw_thread_loop_start(_loop);
}

void Recorder::close()
{
    pw_thread_loop_stop(_loop);
    pw_stream_destroy(_stream);
    pw_thread_loop_destroy(_loop);
    pw_deinit();
}

Recorder::~Recorder()
{
    close();
}

bool Recorder::isLinkedTo(const std::string& device) const
{
    // Each port has a line, followed by the ports that it is linked to.
    std::istringstream lines(outputOf({ "pw-link", "-l" }));
    bool isOfDevice = false;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(' '))
            isOfDevice = line.starts_with(device + ":monitor_");
        else if (isOfDevice && line.find("|-> " + _name + ":") != std::string::npos)
            return true;
    }
    return false;
}

void Recorder::process(void* self)
{
    auto& recorder = *static_cast<Recorder*>(self);
    auto* buffer = pw_stream_dequeue_buffer(recorder._stream);
    if (!buffer)
        return;
    const auto& data = buffer->buffer->datas[0];
    if (data.data) {
        const auto* from = reinterpret_cast<const float*>(
            static_cast<const std::byte*>(data.data) + std::min(data.chunk->offset, data.maxsize));
        const auto filled = recorder._filled.load(std::memory_order_relaxed);
        const auto count = std::min(data.chunk->size / sizeof(float), recorder._samples.size() - filled);
        std::copy_n(from, count, recorder._samples.begin() + static_cast<std::ptrdiff_t>(filled));
        recorder._filled.store(filled + count, std::memory_order_release);
    }
    pw_stream_queue_buffer(recorder._stream, buffer);
}

Samples Recorder::samples(std::size_t from, std::size_t channel) const
{
    const auto end = position();
    Samples samples;
    for (std::size_t i = from; i < end; ++i)
        samples.push_back(_samples[i * _channels + channel]);
    return samples;
}

Samples Recorder::next(std::size_t count, std::size_t channel) const
{
    const auto from = position();
    eventually([&] { return position() >= from + count; });
    auto samples = this->samples(from, channel);
    samples.resize(std::min(samples.size(), count));
    return samples;
}

} // namespace brimsound::tests
