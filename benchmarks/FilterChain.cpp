#include "benchmarks/FilterChain.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/sound/Wait.h"

#include <spa/param/param.h>
#include <spa/param/props.h>
#include <spa/pod/builder.h>
#include <spa/utils/dict.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace brimsound::benchmarks {

namespace {

std::string nameOf(int band)
{
    return "band" + std::to_string(band);
}

std::string configuration()
{
    const auto flat = audio::EqualizerDesign(48000).solve({}, 0);
    std::string nodes;
    std::string links;
    for (int band = 0; band < static_cast<int>(audio::bandCount); ++band) {
        const auto index = static_cast<std::size_t>(band);
        nodes += "{ type = builtin name = " + nameOf(band)
            + " label = bq_peaking control = { \"Freq\" = " + std::to_string(audio::centers[index])
            + " \"Q\" = " + std::to_string(1 / flat.inverseQ[index]) + " \"Gain\" = 0.0 } }\n";
        if (band > 0)
            links += "{ output = \"" + nameOf(band - 1) + ":Out\" input = \"" + nameOf(band) + ":In\" }\n";
    }
    return R"(context.spa-libs = {
    audio.convert.* = audioconvert/libspa-audioconvert
    support.* = support/libspa-support
}
context.modules = [
    { name = libpipewire-module-rt args = { } flags = [ ifexists nofail ] }
    { name = libpipewire-module-protocol-native }
    { name = libpipewire-module-client-node }
    { name = libpipewire-module-adapter }
    { name = libpipewire-module-filter-chain args = {
        node.description = chain media.name = chain audio.channels = 2 audio.position = [ FL FR ]
        capture.props = { node.name = chain media.class = Audio/Sink }
        playback.props = { node.name = chain.output node.passive = true }
        filter.graph = {
            nodes = [ )"
        + nodes + " ]\n links = [ " + links + " ] } } }\n]\n";
}

} // namespace

FilterChain::FilterChain(const std::filesystem::path& folder)
{
    const auto file = folder / "chain.conf";
    tests::writeFile(file, configuration());
    _process.emplace(
        std::vector<std::string> { "sh", "-c", "exec pipewire -c \"$1\" >\"$1.log\" 2>&1", "sh", file });

    static constexpr pw_registry_events events {
        .version = PW_VERSION_REGISTRY_EVENTS,
        .global = globalAdded,
        .global_remove = nullptr,
    };
    pw_init(nullptr, nullptr);
    _loop = pw_thread_loop_new("chain", nullptr);
    _context = pw_context_new(pw_thread_loop_get_loop(_loop), nullptr, 0);
    pw_thread_loop_start(_loop);
    pw_thread_loop_lock(_loop);
    _core = pw_context_connect(_context, nullptr, 0);
    _registry = pw_core_get_registry(_core, PW_VERSION_REGISTRY, 0);
    pw_registry_add_listener(_registry, &_listener, &events, this);
    pw_thread_loop_unlock(_loop);
    const bool found = tests::eventually([this] {
        pw_thread_loop_lock(_loop);
        const bool bound = _node != nullptr;
        pw_thread_loop_unlock(_loop);
        return bound || !_process->running();
    });
    if (!found || !_process->running())
        throw std::runtime_error("the filter chain does not start");
}

FilterChain::~FilterChain()
{
    pw_thread_loop_stop(_loop);
    if (_node)
        pw_proxy_destroy(_node);
    spa_hook_remove(&_listener);
    pw_proxy_destroy(reinterpret_cast<pw_proxy*>(_registry));
    pw_core_disconnect(_core);
    pw_context_destroy(_context);
    pw_thread_loop_destroy(_loop);
    pw_deinit();
}

void FilterChain::globalAdded(
    void* self, std::uint32_t id, std::uint32_t, const char* type, std::uint32_t, const spa_dict* properties)
{
    auto& chain = *static_cast<FilterChain*>(self);
    const char* name = properties ? spa_dict_lookup(properties, PW_KEY_NODE_NAME) : nullptr;
    if (name && std::string_view(name) == "chain" && std::string_view(type) == PW_TYPE_INTERFACE_Node)
        chain._node = static_cast<pw_proxy*>(
            pw_registry_bind(chain._registry, id, PW_TYPE_INTERFACE_Node, PW_VERSION_NODE, 0));
}

void FilterChain::setGain(int band, double gain)
{
    std::array<std::uint8_t, 1024> bytes {};
    spa_pod_builder builder {};
    spa_pod_builder_init(&builder, bytes.data(), bytes.size());
    std::array<spa_pod_frame, 2> frames {};
    spa_pod_builder_push_object(&builder, &frames[0], SPA_TYPE_OBJECT_Props, SPA_PARAM_Props);
    spa_pod_builder_prop(&builder, SPA_PROP_params, 0);
    spa_pod_builder_push_struct(&builder, &frames[1]);
    spa_pod_builder_string(&builder, (nameOf(band) + ":Gain").c_str());
    spa_pod_builder_float(&builder, static_cast<float>(gain));
    spa_pod_builder_pop(&builder, &frames[1]);
    const auto* parameter = static_cast<const spa_pod*>(spa_pod_builder_pop(&builder, &frames[0]));
    pw_thread_loop_lock(_loop);
    pw_node_set_param(reinterpret_cast<pw_node*>(_node), SPA_PARAM_Props, 0, parameter);
    pw_thread_loop_unlock(_loop);
}

} // namespace brimsound::benchmarks
