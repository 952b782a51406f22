// Passing values between threads without waiting.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <type_traits>

namespace brimsound::audio {

/// Passes the newest value from one writing thread to one reading thread. Both functions are wait-free.
/// Values that are not read in time are dropped. There are three slots: the writer owns one, the reader owns
/// one, and each exchanges its own for the third.
template <typename Value> class TripleBuffer {
    static_assert(std::is_trivially_copyable_v<Value>);
    static_assert(std::atomic<std::uint32_t>::is_always_lock_free);

public:
    /// Writer's side only.
    void write(const Value& value) noexcept
    {
        _slots[_writing] = value;
        _writing = _shared.exchange(_writing | fresh, std::memory_order_acq_rel) & index;
    }

    /// Reader's side only. Returns the newest value if one was written since the last call, otherwise null.
    /// It stays valid and unchanged until the next call.
    const Value* read() noexcept
    {
        if (!(_shared.load(std::memory_order_relaxed) & fresh))
            return nullptr;
        _reading = _shared.exchange(_reading, std::memory_order_acq_rel) & index;
        return &_slots[_reading];
    }

private:
    static constexpr std::uint32_t index = 3;
    static constexpr std::uint32_t fresh = 4;

    std::array<Value, 3> _slots {};
    // The slot without an owner, and whether it holds a new value.
    std::atomic<std::uint32_t> _shared = 1;
    // On separate cache lines, because the threads would otherwise slow each other down.
    alignas(64) std::uint32_t _writing = 0;
    alignas(64) std::uint32_t _reading = 2;
};

} // namespace brimsound::audio
