// What a device plays.
#pragma once

#include <pipewire/pipewire.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

namespace brimsound::tests {

/// Captured samples of one channel, 48,000 a second.
using Samples = std::vector<float>;

/// Records what arrives at a device from the moment on that the constructor returns. At most a minute of it.
class Recorder {
public:
    /// `channels` as the device has them. `frames` is the length of a cycle that is asked for. Throws
    /// std::runtime_error when nothing comes.
    explicit Recorder(const std::string& device, const std::vector<std::string>& channels = { "FL", "FR" },
        unsigned frames = 512);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    ~Recorder();

    /// How many samples of each channel there are by now.
    std::size_t position() const { return _filled.load(std::memory_order_acquire) / _channels; }
    /// The samples of a channel from a position on.
    Samples samples(std::size_t from = 0, std::size_t channel = 0) const;
    /// Waits until so many more samples have come, and returns them. Fewer when the device stopped.
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
