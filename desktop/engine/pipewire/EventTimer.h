#pragma once

#include <systemd/sd-event.h>

#include <chrono>
#include <functional>
#include <memory>

namespace brimsound::engine {

/// A timer on an sd-event loop. Calls a function once after each start.
class EventTimer {
public:
    EventTimer(sd_event*, std::function<void()>);
    EventTimer(const EventTimer&) = delete;
    EventTimer& operator=(const EventTimer&) = delete;
    ~EventTimer();

    /// Replaces an earlier start.
    void start(std::chrono::milliseconds delay);
    void stop();

private:
    static int elapsed(sd_event_source*, std::uint64_t time, void* self);

    sd_event* _event;
    sd_event_source* _source = nullptr;
    std::function<void()> _call;
};

} // namespace brimsound::engine
