// PipeWire's events within the program's own event loop.
#pragma once

#include <pipewire/pipewire.h>
#include <systemd/sd-event.h>

#include <functional>
#include <memory>

namespace brimsound::engine {

/// Serves PipeWire on the thread of an sd-event loop, so that all control has one thread. Sound has a thread
/// of PipeWire's own.
class PipeWireLoop {
public:
    /// `afterEvents` is called whenever events were served, outside all of PipeWire's own calls: there
    /// anything may be destroyed. Throws std::runtime_error when there is no loop to be had.
    PipeWireLoop(sd_event*, std::function<void()> afterEvents);
    PipeWireLoop(const PipeWireLoop&) = delete;
    PipeWireLoop& operator=(const PipeWireLoop&) = delete;
    ~PipeWireLoop();

    pw_loop* get() const { return _loop; }
    /// Serves what arrives within that time, without calling `afterEvents`.
    void iterate(int milliseconds);

private:
    static int serve(sd_event_source*, int descriptor, std::uint32_t events, void* self);

    std::function<void()> _afterEvents;
    pw_loop* _loop = nullptr;
    sd_event_source* _source = nullptr;
};

} // namespace brimsound::engine
