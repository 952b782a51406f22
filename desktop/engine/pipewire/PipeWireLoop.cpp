#include "desktop/engine/pipewire/PipeWireLoop.h"

#include <stdexcept>
#include <sys/epoll.h>
#include <utility>

namespace brimsound::engine {

PipeWireLoop::PipeWireLoop(sd_event* event, std::function<void()> afterEvents)
    : _afterEvents(std::move(afterEvents))
{
    pw_init(nullptr, nullptr);
    _loop = pw_loop_new(nullptr);
    if (!_loop)
        throw std::runtime_error("PipeWire has no event loop");
    pw_loop_enter(_loop);
    if (sd_event_add_io(event, &_source, pw_loop_get_fd(_loop), EPOLLIN, serve, this) < 0) {
        pw_loop_leave(_loop);
        pw_loop_destroy(_loop);
        throw std::runtime_error("PipeWire's event loop cannot be watched");
    }
}

PipeWireLoop::~PipeWireLoop()
{
    sd_event_source_unref(_source);
    pw_loop_leave(_loop);
    pw_loop_destroy(_loop);
    pw_deinit();
}

void PipeWireLoop::iterate(int milliseconds)
{
    pw_loop_iterate(_loop, milliseconds);
}

int PipeWireLoop::serve(sd_event_source*, int, std::uint32_t, void* self)
{
    auto& loop = *static_cast<PipeWireLoop*>(self);
    loop.iterate(0);
    loop._afterEvents();
    return 0;
}

} // namespace brimsound::engine
