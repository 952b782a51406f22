#include "desktop/engine/pipewire/EqualizedSink.h"

#include "desktop/engine/pipewire/NodeNames.h"

#include <spa/param/audio/format-utils.h>
#include <spa/param/latency-utils.h>
#include <spa/param/props.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace brimsound::engine {

namespace {

/// The sink's part of a cycle ends before the output's does. Without this flag, later versions of PipeWire
/// skip every second buffer; earlier ones do not know the flag and do not need it.
constexpr unsigned asyncFlag = 1U << 10;

/// By this time the session manager has restored volumes, but no user has changed one yet.
constexpr auto restoreTime = std::chrono::seconds(3);

constexpr unsigned commonFlags = PW_STREAM_FLAG_MAP_BUFFERS | PW_STREAM_FLAG_RT_PROCESS;

pw_properties* commonProperties(const char* name, const char* description, const char* mediaClass)
{
    // The session manager should not restore the volume and target at the next start.
    return pw_properties_new(PW_KEY_NODE_NAME, name, PW_KEY_NODE_DESCRIPTION, description, PW_KEY_MEDIA_CLASS,
        mediaClass, PW_KEY_NODE_GROUP, groupName, PW_KEY_NODE_LINK_GROUP, groupName, "state.restore-props",
        "false", "state.restore-target", "false", nullptr);
}

pw_properties* sinkProperties()
{
    auto* properties = commonProperties(sinkName, "Brimsound", "Audio/Sink");
    pw_properties_set(properties, PW_KEY_NODE_VIRTUAL, "true");
    return properties;
}

pw_properties* outputProperties()
{
    auto* properties = commonProperties(outputName, "Brimsound output", "Stream/Output/Audio");
    pw_properties_set(properties, PW_KEY_NODE_PASSIVE, "true");
    return properties;
}

/// The default value of a volume or mute control; nothing for other controls.
std::optional<float> usualValue(std::uint32_t control)
{
    switch (control) {
    case SPA_PROP_volume:
    case SPA_PROP_channelVolumes:
        return 1.0F;
    case SPA_PROP_mute:
        return 0.0F;
    default:
        return std::nullopt;
    }
}

/// The newest available buffer; older ones are returned to the stream.
pw_buffer* newestBuffer(pw_stream* stream)
{
    pw_buffer* newest = nullptr;
    while (auto* buffer = pw_stream_dequeue_buffer(stream)) {
        if (newest)
            pw_stream_queue_buffer(stream, newest);
        newest = buffer;
    }
    return newest;
}

} // namespace

class EqualizedSink::Turn {
public:
    explicit Turn(EqualizedSink& sink)
        : _sink(sink)
    {
        ++_sink._turns;
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { --_sink._turns; }

    // The turn is counted first: either it sees here that the end has begun, or the end sees and awaits it.
    bool mayPlay() const { return _sink._mayPlay; }

private:
    EqualizedSink& _sink;
};

EqualizedSink::EqualizedSink(pw_core* core, ChannelLayout layout, const Settings& settings, Changes changes)
    : _layout(std::move(layout))
    , _settings(settings)
    , _changes(std::move(changes))
{
    static constexpr auto outputEvents = [] {
        pw_stream_events events {};
        events.version = PW_VERSION_STREAM_EVENTS;
        events.state_changed = stateChanged;
        events.control_info = controlInfo;
        events.param_changed = parameterChanged;
        events.process = outputProcess;
        return events;
    }();
    static constexpr auto inputEvents = [] {
        auto events = outputEvents;
        events.process = inputProcess;
        return events;
    }();
    open(_output, core, "Brimsound output", outputProperties());
    open(_input, core, "Brimsound", sinkProperties());
    _output.other = &_input;
    _input.other = &_output;
    // The output is connected first, so that it is ready when sound arrives.
    connect(_output, PW_DIRECTION_OUTPUT, PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_TRIGGER, outputEvents);
    connect(_input, PW_DIRECTION_INPUT, asyncFlag, inputEvents);
}

EqualizedSink::~EqualizedSink()
{
    stopPlaying();
    // From here on the audio thread calls neither stream, so their listeners can be removed.
    for (const auto* side : { &_input, &_output }) {
        if (side->stream)
            pw_stream_disconnect(side->stream.get());
    }
}

void EqualizedSink::open(Side& side, pw_core* core, const char* name, pw_properties* properties)
{
    side.owner = this;
    side.stream.reset(pw_stream_new(core, name, properties));
    if (!side.stream)
        throw std::runtime_error("PipeWire cannot create a stream");
}

void EqualizedSink::connect(
    Side& side, pw_direction direction, unsigned flags, const pw_stream_events& events)
{
    pw_stream_add_listener(side.stream.get(), &side.listener, &events, &side);

    spa_audio_info_raw format {};
    format.format = SPA_AUDIO_FORMAT_F32P;
    format.channels = static_cast<std::uint32_t>(_layout.size());
    std::ranges::copy(_layout, format.position);
    std::array<std::uint8_t, 1024> bytes {};
    spa_pod_builder builder {};
    spa_pod_builder_init(&builder, bytes.data(), bytes.size());
    const spa_pod* parameters[] = { spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format) };
    if (pw_stream_connect(side.stream.get(), direction, PW_ID_ANY,
            static_cast<pw_stream_flags>(commonFlags | flags), parameters, 1)
        < 0)
        throw std::runtime_error("PipeWire does not connect a stream");
}

void EqualizedSink::stopPlaying()
{
    // PipeWire waits for the audio thread to leave a stream that changes, but a turn of one stream also uses
    // the other stream.
    _mayPlay = false;
    while (_turns != 0)
        std::this_thread::yield();
}

void EqualizedSink::set(const Settings& settings)
{
    _settings = settings;
    design();
}

void EqualizedSink::design()
{
    if (_rate != 0)
        _changes.headroom(_chain.set(_settings, _rate));
}

void EqualizedSink::inputProcess(void* side)
{
    const auto& input = *static_cast<Side*>(side);
    const Turn turn(*input.owner);
    if (turn.mayPlay() && pw_stream_trigger_process(input.other->stream.get()) >= 0)
        return;
    // There is no device, or it is not ready. The buffers are returned, so that programs keep playing.
    if (auto* buffer = newestBuffer(input.stream.get()))
        pw_stream_queue_buffer(input.stream.get(), buffer);
}

void EqualizedSink::outputProcess(void* side)
{
    const auto& output = *static_cast<Side*>(side);
    const Turn turn(*output.owner);
    if (!turn.mayPlay())
        return;
    auto* inputStream = output.other->stream.get();
    auto* outputStream = output.stream.get();
    auto* in = newestBuffer(inputStream);
    auto* out = pw_stream_dequeue_buffer(outputStream);
    if (in && out) {
        const auto channels = std::min(
            { static_cast<std::size_t>(in->buffer->n_datas), static_cast<std::size_t>(out->buffer->n_datas),
                static_cast<std::size_t>(audio::maximumChannels) });
        std::array<const float*, audio::maximumChannels> from {};
        std::array<float*, audio::maximumChannels> to {};
        std::size_t bytes = channels ? in->buffer->datas[0].maxsize : 0;
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const auto& source = in->buffer->datas[channel];
            const auto offset = std::min(source.chunk->offset, source.maxsize);
            bytes = std::min<std::size_t>({ bytes, std::min(source.chunk->size, source.maxsize - offset),
                out->buffer->datas[channel].maxsize });
            from[channel] = source.data
                ? reinterpret_cast<const float*>(static_cast<const std::byte*>(source.data) + offset)
                : nullptr;
            to[channel] = static_cast<float*>(out->buffer->datas[channel].data);
        }
        output.owner->_chain.process(
            from.data(), to.data(), static_cast<unsigned>(channels), bytes / sizeof(float));
        for (std::size_t channel = 0; channel < out->buffer->n_datas; ++channel) {
            auto& chunk = *out->buffer->datas[channel].chunk;
            chunk.offset = 0;
            chunk.size = static_cast<std::uint32_t>(bytes);
            chunk.stride = sizeof(float);
        }
    }
    if (in)
        pw_stream_queue_buffer(inputStream, in);
    if (out)
        pw_stream_queue_buffer(outputStream, out);
}

void EqualizedSink::parameterChanged(void* side, std::uint32_t id, const spa_pod* parameter)
{
    auto& changed = *static_cast<Side*>(side);
    auto& self = *changed.owner;
    if (!parameter) {
        if (id == SPA_PARAM_Format && &changed == &self._output)
            self.stopPlaying();
        return;
    }
    if (id == SPA_PARAM_Format) {
        spa_audio_info_raw format {};
        if (spa_format_audio_raw_parse(parameter, &format) < 0 || format.rate == 0
            || format.rate == self._rate)
            return;
        self._rate = format.rate;
        self._changes.rate(format.rate);
        self.design();
    } else if (id == SPA_PARAM_Latency) {
        // The latency behind one stream is reported to the programs at the other stream.
        pw_stream_update_params(changed.other->stream.get(), &parameter, 1);
    }
}

void EqualizedSink::stateChanged(void* side, pw_stream_state, pw_stream_state now, const char*)
{
    auto& changed = *static_cast<Side*>(side);
    auto& self = *changed.owner;
    const bool plays = now == PW_STREAM_STATE_STREAMING;
    if (plays)
        changed.hasPlayed = true;
    if (&changed != &self._output)
        return;
    // Triggering an output before it is ready fails in a converter that PipeWire has not set up yet.
    if (plays)
        self._mayPlay = true;
    else
        self.stopPlaying();
}

void EqualizedSink::controlInfo(void* side, std::uint32_t id, const pw_stream_control* control)
{
    // Some session managers restore the volume of an earlier run on a new node. Later changes are made by the
    // user and are kept.
    auto& changed = *static_cast<Side*>(side);
    if (changed.hasPlayed && std::chrono::steady_clock::now() > changed.owner->_made + restoreTime)
        return;
    const float* begin = control->values;
    const auto usual = usualValue(id);
    if (usual && std::any_of(begin, begin + control->n_values, [&](float value) { return value != *usual; }))
        changed.restored[id] = control->n_values;
}

void EqualizedSink::resetControls()
{
    for (auto* side : { &_input, &_output }) {
        for (const auto& [id, count] : std::exchange(side->restored, {})) {
            std::vector<float> values(count, *usualValue(id));
            pw_stream_set_control(side->stream.get(), id, count, values.data(), 0);
        }
    }
}

} // namespace brimsound::engine
