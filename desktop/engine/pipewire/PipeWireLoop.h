#pragma once

#include <pipewire/pipewire.h>
#include <systemd/sd-event.h>

#include <functional>
#include <memory>

namespace brimsound::engine {

/// Handles PipeWire's events on the thread of an sd-event loop, so that all control is on one thread.
/// PipeWire processes sound on its own thread.
class PipeWireLoop {
public:
    /// `afterEvents` is called each time after events were handled, outside PipeWire's callbacks, where any
    /// object may be destroyed. Throws std::runtime_error when PipeWire's loop cannot be created.
    PipeWireLoop(sd_event*, std::function<void()> afterEvents);
    PipeWireLoop(const PipeWireLoop&) = delete;
    PipeWireLoop& operator=(const PipeWireLoop&) = delete;
    ~PipeWireLoop();

    pw_loop* get() const { return _loop; }
    /// Handles events for at most that time, without calling `afterEvents`.
    void iterate(int milliseconds);

private:
    static int serve(sd_event_source*, int descriptor, std::uint32_t events, void* self);

    std::function<void()> _afterEvents;
    pw_loop* _loop = nullptr;
    sd_event_source* _source = nullptr;
};

} // namespace brimsound::engine
