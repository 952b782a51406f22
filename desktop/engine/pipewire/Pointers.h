// Owners of PipeWire's objects.
#pragma once

#include <pipewire/pipewire.h>
#include <spa/utils/hook.h>

#include <memory>

namespace brimsound::engine {

struct PipeWireDestroy {
    void operator()(pw_context* context) const { pw_context_destroy(context); }
    void operator()(pw_core* core) const { pw_core_disconnect(core); }
    void operator()(pw_stream* stream) const { pw_stream_destroy(stream); }
    void operator()(pw_proxy* proxy) const { pw_proxy_destroy(proxy); }
};

using Context = std::unique_ptr<pw_context, PipeWireDestroy>;
using Core = std::unique_ptr<pw_core, PipeWireDestroy>;
using Stream = std::unique_ptr<pw_stream, PipeWireDestroy>;
using Proxy = std::unique_ptr<pw_proxy, PipeWireDestroy>;

/// A listener's entry in the list of its object. Must be destroyed before the object.
struct Hook : spa_hook {
    Hook()
        : spa_hook {}
    {
    }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;
    ~Hook()
    {
        if (link.prev)
            spa_hook_remove(this);
    }
};

} // namespace brimsound::engine
