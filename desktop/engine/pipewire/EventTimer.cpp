#include "desktop/engine/pipewire/EventTimer.h"

#include <ctime>
#include <utility>

namespace brimsound::engine {

EventTimer::EventTimer(sd_event* event, std::function<void()> call)
    : _event(event)
    , _call(std::move(call))
{
}

EventTimer::~EventTimer()
{
    stop();
}

void EventTimer::start(std::chrono::milliseconds delay)
{
    stop();
    const auto microseconds = std::chrono::microseconds(delay).count();
    sd_event_add_time_relative(
        _event, &_source, CLOCK_MONOTONIC, static_cast<std::uint64_t>(microseconds), 1000, elapsed, this);
}

void EventTimer::stop()
{
    sd_event_source_disable_unref(std::exchange(_source, nullptr));
}

int EventTimer::elapsed(sd_event_source*, std::uint64_t, void* self)
{
    auto& timer = *static_cast<EventTimer*>(self);
    timer.stop();
    timer._call();
    return 0;
}

} // namespace brimsound::engine
