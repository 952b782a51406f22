// Recording the sound of a device.
#pragma once

#include <pipewire/pipewire.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

namespace brimsound::tests {

/// Recorded samples of one channel, 48,000 per second.
using Samples = std::vector<float>;

/// Records what a device plays, from the end of the constructor on, for at most a minute.
class Recorder {
public:
    /// `channels` are those of the device. `frames` is the requested length of a cycle. Throws
    /// std::runtime_error when no sound arrives.
    explicit Recorder(const std::string& device, const std::vector<std::string>& channels = { "FL", "FR" },
        unsigned frames = 512);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    ~Recorder();

    /// The number of samples recorded so far for each channel.
    std::size_t position() const { return _filled.load(std::memory_order_acquire) / _channels; }
    /// The samples of a channel from a position on.
    Samples samples(std::size_t from = 0, std::size_t channel = 0) const;
    /// Waits for that many more samples and returns them. Returns fewer when the device stopped.
    Samples next(std::size_t count, std::size_t channel = 0) const;

private:
    void open(const std::string& device, const std::vector<std::string>& channels, unsigned frames);
    void close();
    bool isLinkedTo(const std::string& device) const;
    static void process(void* self);

    const std::string _name;
    std::size_t _channels;
    std::vector<float> _samples;
    std::atomic<std::size_t> _filled = 0;
    pw_thread_loop* _loop = nullptr;
    pw_stream* _stream = nullptr;
};

} // namespace brimsound::tests
