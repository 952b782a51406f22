// The session manager's metadata "default": the targets of streams, and the default sink.
#pragma once

#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/StreamRouting.h"

#include <pipewire/extensions/metadata.h>

#include <functional>

namespace brimsound::engine {

/// Reports the contents of the metadata and all changes to a StreamRouting, and writes changes to it. The
/// metadata belongs to the session manager and disappears with it.
class DefaultMetadata {
public:
    /// Takes ownership of the proxy of a PW_TYPE_INTERFACE_Metadata object. The routing must outlive this
    /// object; the destructor notifies it.
    DefaultMetadata(Proxy, StreamRouting&);
    DefaultMetadata(const DefaultMetadata&) = delete;
    DefaultMetadata& operator=(const DefaultMetadata&) = delete;
    ~DefaultMetadata();

    void write(const MetadataWrite&);
    /// The node name of the default sink; empty when there is none.
    const std::string& defaultSink() const { return _defaultSink; }
    /// The node name of the sink that the user chose as the default; empty when there is none. It is the
    /// default while it exists.
    const std::string& chosenSink() const { return _chosenSink; }

private:
    static int property(
        void* self, std::uint32_t subject, const char* key, const char* type, const char* value);

    Proxy _proxy;
    StreamRouting& _routing;
    std::string _defaultSink;
    std::string _chosenSink;
    Hook _listener;
};

} // namespace brimsound::engine
