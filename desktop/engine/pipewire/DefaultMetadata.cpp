#include "desktop/engine/pipewire/DefaultMetadata.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace brimsound::engine {

namespace {

/// The name in a value such as {"name":"speakers"}; empty when there is none.
std::string nameIn(const char* value)
{
    const auto json = nlohmann::json::parse(value ? value : "", nullptr, false);
    const auto name = json.is_object() ? json.find("name") : json.end();
    return name != json.end() && name->is_string() ? name->get<std::string>() : std::string();
}

std::optional<std::string> optionalString(const char* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace

DefaultMetadata::DefaultMetadata(Proxy proxy, StreamRouting& routing)
    : _proxy(std::move(proxy))
    , _routing(routing)
{
    static constexpr pw_metadata_events events { PW_VERSION_METADATA_EVENTS, property };
    pw_metadata_add_listener(reinterpret_cast<pw_metadata*>(_proxy.get()), &_listener, &events, this);
}

DefaultMetadata::~DefaultMetadata()
{
    _routing.metadataRemoved();
}

void DefaultMetadata::write(const MetadataWrite& write)
{
    pw_metadata_set_property(reinterpret_cast<pw_metadata*>(_proxy.get()), write.subject, write.key.c_str(),
        write.value ? write.type.c_str() : nullptr, write.value ? write.value->c_str() : nullptr);
}

int DefaultMetadata::property(
    void* self, std::uint32_t subject, const char* key, const char*, const char* value)
{
    auto& metadata = *static_cast<DefaultMetadata*>(self);
    const std::string_view name = key ? key : "";
    if (name == "default.audio.sink") {
        metadata._defaultSink = nameIn(value);
        metadata._routing.defaultSinkChanged(metadata._defaultSink);
    } else if (name == "default.configured.audio.sink") {
        metadata._chosenSink = nameIn(value);
    } else {
        metadata._routing.metadataChanged(subject, optionalString(key), optionalString(value));
    }
    return 0;
}

} // namespace brimsound::engine
