#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <pipewire/pipewire.h>

#include <filesystem>
#include <optional>

namespace brimsound::benchmarks {

/// PipeWire's own equalizer, for comparison: a running module-filter-chain with the sink "chain" and ten
/// peaking filters at the same bands, and a connection that changes their gains.
class FilterChain {
public:
    /// Writes its configuration to `folder`. Throws std::runtime_error when it does not start.
    explicit FilterChain(const std::filesystem::path& folder);
    FilterChain(const FilterChain&) = delete;
    FilterChain& operator=(const FilterChain&) = delete;
    ~FilterChain();

    /// Sends a new gain in dB for one band, counted from 0. Does not wait for its effect.
    void setGain(int band, double gain);

    pid_t processIdentifier() const { return _process->processIdentifier(); }

private:
    static void globalAdded(void* self, std::uint32_t id, std::uint32_t permissions, const char* type,
        std::uint32_t version, const spa_dict* properties);

    std::optional<desktop::ChildProcess> _process;
    pw_thread_loop* _loop = nullptr;
    pw_context* _context = nullptr;
    pw_core* _core = nullptr;
    pw_registry* _registry = nullptr;
    pw_proxy* _node = nullptr;
    spa_hook _listener {};
};

} // namespace brimsound::benchmarks
