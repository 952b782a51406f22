#pragma once

#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/StreamRouting.h"

#include <functional>

namespace brimsound::engine {

/// Queries what the registry does not contain about a program's stream: all its properties, and whether it
/// supports sound that is not encoded. The session manager links a stream once it knows this, so the queries
/// must not take longer.
class PlayingStream {
public:
    /// Takes ownership of the proxy of a node. Calls `changed` once enough is known to route the stream, and
    /// again after each change.
    PlayingStream(Proxy, pw_core*, std::function<void(const StreamProperties&)> changed);
    PlayingStream(const PlayingStream&) = delete;
    PlayingStream& operator=(const PlayingStream&) = delete;

private:
    static void info(void* self, const pw_node_info*);
    static void param(
        void* self, int sequence, std::uint32_t id, std::uint32_t index, std::uint32_t next, const spa_pod*);
    static void done(void* self, std::uint32_t id, int sequence);
    void tell();

    Proxy _proxy;
    std::function<void(const StreamProperties&)> _changed;
    StreamProperties _properties;
    int _sync = 0;
    bool _hasFormats = false;
    bool _offersRaw = false;
    bool _offersEncoded = false;
    Hook _nodeListener;
    Hook _coreListener;
};

} // namespace brimsound::engine
