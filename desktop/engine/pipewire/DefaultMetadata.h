// The session manager's metadata "default": targets of streams, and the default sink.
#pragma once

#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/StreamRouting.h"

#include <pipewire/extensions/metadata.h>

#include <functional>

namespace brimsound::engine {

/// Tells a StreamRouting all that the metadata holds and every change of it, and writes to it. It belongs to
/// the session manager, and goes when that goes.
class DefaultMetadata {
public:
    /// Takes over the proxy of an object of type PW_TYPE_INTERFACE_Metadata. The routing outlives this object
    /// and is told when it goes.
    DefaultMetadata(Proxy, StreamRouting&);
    DefaultMetadata(const DefaultMetadata&) = delete;
    DefaultMetadata& operator=(const DefaultMetadata&) = delete;
    ~DefaultMetadata();

    void write(const MetadataWrite&);
    /// The node name of the default sink; empty when there is none.
    const std::string& defaultSink() const { return _defaultSink; }

private:
    static int property(
        void* self, std::uint32_t subject, const char* key, const char* type, const char* value);

    Proxy _proxy;
    StreamRouting& _routing;
    std::string _defaultSink;
    Hook _listener;
};

} // namespace brimsound::engine
