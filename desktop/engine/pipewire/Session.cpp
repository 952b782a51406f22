#include "desktop/engine/pipewire/Session.h"

#include "desktop/engine/pipewire/Dictionary.h"
#include "desktop/engine/pipewire/NodeNames.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace brimsound::engine {

namespace {

using namespace std::chrono_literals;

constexpr auto limitedInterval = 1s;
/// How long to wait for the session manager to link the output to the device.
constexpr auto linkPatience = 2s;
/// How long to wait for the session manager to make the user's choice the default.
constexpr auto defaultPatience = 500ms;
constexpr auto releasePatience = 500ms;

} // namespace

Session::Session(
    Core core, sd_event* event, PipeWireLoop& loop, const Settings& settings, const Reports& reports)
    : _loop(loop)
    , _settings(settings)
    , _reports(reports)
    , _core(std::move(core))
    , _limitedTimer(event, [this] { tellLimited(); })
    , _unlinkedTimer(event, [this] { remakeUnlinkedSink(); })
    , _defaultTimer(event, [this] { readMetadataAgain(); })
{
    static constexpr auto coreEvents = [] {
        pw_core_events events {};
        events.version = PW_VERSION_CORE_EVENTS;
        events.done = coreDone;
        events.error = coreError;
        return events;
    }();
    static constexpr pw_registry_events registryEvents {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = globalAdded,
        .global_remove = globalRemoved,
    };
    pw_core_add_listener(_core.get(), &_coreListener, &coreEvents, this);
    auto* registry = pw_core_get_registry(_core.get(), PW_VERSION_REGISTRY, 0);
    if (!registry)
        throw std::runtime_error("PipeWire has no registry");
    _registry.reset(reinterpret_cast<pw_proxy*>(registry));
    pw_registry_add_listener(registry, &_registryListener, &registryEvents, this);
    sync();
    if (_reports.limited)
        _limitedTimer.start(limitedInterval);
}

void Session::set(const Settings& settings)
{
    _settings = settings;
    for (auto* sink : { _sink.get(), _nextSink.get() }) {
        if (sink)
            sink->set(settings);
    }
}

void Session::sync()
{
    _asked = pw_core_sync(_core.get(), PW_ID_CORE, 0);
}

void Session::coreDone(void* self, std::uint32_t id, int sequence)
{
    auto& session = *static_cast<Session*>(self);
    if (id != PW_ID_CORE)
        return;
    session._answered = sequence;
    if (session._metadataAsked == sequence) {
        session._metadataAsked.reset();
        session._routing.metadataReady();
        session._mayStayUnlinked = true;
    }
}

void Session::coreError(void* self, std::uint32_t id, int, int result, const char*)
{
    // Other errors concern single objects, for example a stream without a device, or one that has ended.
    if (id == PW_ID_CORE && result == -EPIPE)
        static_cast<Session*>(self)->_lost = true;
}

void Session::globalAdded(void* self, std::uint32_t id, std::uint32_t, const char* type,
    std::uint32_t version, const spa_dict* dictionary)
{
    auto& session = *static_cast<Session*>(self);
    const std::string_view kind(type);
    auto properties = toMap(dictionary);
    if (kind == PW_TYPE_INTERFACE_Node)
        session.addNode(id, std::move(properties));
    else if (kind == PW_TYPE_INTERFACE_Port)
        session._graph.portAdded(id, std::move(properties));
    else if (kind == PW_TYPE_INTERFACE_Link)
        session._graph.linkAdded(id, std::move(properties));
    else if (kind == PW_TYPE_INTERFACE_Metadata && properties["metadata.name"] == "default")
        session.bindMetadata(id, version);
    else
        return;
    session.sync();
}

void Session::globalRemoved(void* self, std::uint32_t id)
{
    auto& session = *static_cast<Session*>(self);
    session._graph.removed(id);
    session._routing.streamRemoved(id);
    session._streams.erase(id);
    if (id == session._metadataId) {
        session._metadata.reset();
        session._metadataAsked.reset();
    }
}

void Session::addNode(std::uint32_t id, std::map<std::string, std::string> properties)
{
    if (properties["media.class"] == "Stream/Output/Audio") {
        auto* registry = reinterpret_cast<pw_registry*>(_registry.get());
        Proxy proxy(static_cast<pw_proxy*>(
            pw_registry_bind(registry, id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0)));
        if (proxy)
            _streams[id] = std::make_unique<PlayingStream>(std::move(proxy), _core.get(),
                [this, id](const StreamProperties& stream) { _routing.streamChanged(id, stream); });
    }
    _graph.nodeAdded(id, std::move(properties));
}

void Session::bindMetadata(std::uint32_t id, std::uint32_t version)
{
    auto* registry = reinterpret_cast<pw_registry*>(_registry.get());
    Proxy proxy(static_cast<pw_proxy*>(
        pw_registry_bind(registry, id, PW_TYPE_INTERFACE_Metadata, std::min(version, 3U), 0)));
    if (!proxy)
        return;
    _metadata = std::make_unique<DefaultMetadata>(std::move(proxy), _routing);
    _metadataId = id;
    _metadataVersion = version;
    sync();
    _metadataAsked = _asked;
}

void Session::update()
{
    if (_lost)
        return;
    for (auto* sink : { _sink.get(), _nextSink.get() }) {
        if (sink)
            sink->resetControls();
    }
    // The new sink replaces the old one only when programs can be moved to it, so that none plays without
    // equalizing.
    if (_nextSink && !_graph.serialOf(_nextSink->sinkNode()).empty()
        && _graph.deviceOf(_nextSink->outputNode())) {
        _limitedBefore += _sink->limitedBlocks();
        _sink = std::move(_nextSink);
    }
    if (_answered == _asked && !_metadataAsked && !yieldToAnother())
        fitSink();

    std::optional<StreamRouting::OwnNodes> own;
    if (_sink) {
        auto serial = _graph.serialOf(_sink->sinkNode());
        // The output is created before the sink, so it is in the graph as well.
        if (!serial.empty())
            own = { _sink->sinkNode(), std::move(serial), _sink->outputNode() };
    }
    _routing.setOwnNodes(own);
    if (_mayStayUnlinked && hasDefaultDevice()) {
        _mayStayUnlinked = false;
        _unlinkedTimer.start(linkPatience);
    }
    expectDefault();
    writeMetadata();
    report();
}

bool Session::yieldToAnother()
{
    auto* client = reinterpret_cast<pw_proxy*>(pw_core_get_client(_core.get()));
    const bool yields = _graph.hasOlderSink(
        sinkName, pw_proxy_get_bound_id(client), _sink ? _graph.serialOf(_sink->sinkNode()) : std::string());
    if (yields) {
        _nextSink.reset();
        _sink.reset();
    }
    if (yields && !_yields && _reports.problem)
        _reports.problem("another equalizer uses this PipeWire: waiting until it ends");
    _yields = yields;
    return yields;
}

void Session::fitSink()
{
    auto device = _sink ? _graph.deviceOf(_sink->outputNode()) : std::nullopt;
    if (!_sink && _metadata)
        device = _graph.sinkNamed(_metadata->defaultSink());
    const auto layout
        = (device ? layoutFor(device->channels) : std::nullopt).value_or(_sink ? _sink->layout() : stereo);
    if (!_sink) {
        makeSink(layout);
        return;
    }
    if (layout == (_nextSink ? _nextSink->layout() : _sink->layout()))
        return;
    // Downmixing can make the sound louder.
    if (layout.size() < _sink->layout().size())
        _sink->mute();
    makeSink(layout);
}

void Session::makeSink(const ChannelLayout& layout)
{
    auto& place = _sink ? _nextSink : _sink;
    place.reset();
    place = std::make_unique<EqualizedSink>(_core.get(), layout, _settings,
        EqualizedSink::Changes { [this](unsigned rate) {
                                    if (_reports.rate && rate != _reportedRate)
                                        _reports.rate(rate);
                                    _reportedRate = rate;
                                },
            [this](double headroom) {
                if (_reports.headroom && headroom != _reportedHeadroom)
                    _reports.headroom(headroom);
                _reportedHeadroom = headroom;
            } });
    if (_reports.layout)
        _reports.layout(namesOf(layout));
}

void Session::writeMetadata()
{
    const auto writes = _routing.takeWrites();
    for (const auto& write : writes) {
        if (_metadata)
            _metadata->write(write);
    }
}

void Session::report()
{
    const auto device = _sink ? _graph.deviceOf(_sink->outputNode()) : std::nullopt;
    auto name = device ? device->name : std::string();
    if (!_sink || name == _reportedOutput)
        return;
    if (_reports.output)
        _reports.output(name);
    _reportedOutput = std::move(name);
}

void Session::tellLimited()
{
    std::uint64_t limited = _limitedBefore;
    for (const auto* sink : { _sink.get(), _nextSink.get() })
        limited += sink ? sink->limitedBlocks() : 0;
    if (limited != _reportedLimited)
        _reports.limited(limited);
    _reportedLimited = limited;
    _limitedTimer.start(limitedInterval);
}

bool Session::hasDefaultDevice() const
{
    return _metadata && _metadata->defaultSink() != sinkName && _graph.sinkNamed(_metadata->defaultSink());
}

void Session::remakeUnlinkedSink()
{
    if (!_sink || _nextSink || _graph.deviceOf(_sink->outputNode()) || !hasDefaultDevice())
        return;
    const auto layout = _sink->layout();
    _sink.reset();
    makeSink(layout);
}

void Session::expectDefault()
{
    if (!_metadata || _metadata->chosenSink().empty() || _metadata->chosenSink() == _expectedDefault)
        return;
    _expectedDefault = _metadata->chosenSink();
    _defaultTimer.start(defaultPatience);
}

/// PipeWire does not report a change to a client when another client begins to read the metadata at that
/// moment.
void Session::readMetadataAgain()
{
    if (_metadata && _metadata->defaultSink() != _expectedDefault && _graph.sinkNamed(_expectedDefault))
        bindMetadata(_metadataId, _metadataVersion);
}

void Session::release()
{
    for (const auto& write : _routing.release()) {
        if (_metadata)
            _metadata->write(write);
    }
    sync();
    const auto deadline = std::chrono::steady_clock::now() + releasePatience;
    while (!_lost && _answered != _asked && std::chrono::steady_clock::now() < deadline)
        _loop.iterate(10);
}

} // namespace brimsound::engine
