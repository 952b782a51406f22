// PipeWire's own equalizer, for comparison.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <pipewire/pipewire.h>

#include <filesystem>
#include <optional>

namespace brimsound::benchmarks {

/// A running module-filter-chain with the sink "chain" and ten peaking filters at our bands, and a connection
/// to change their gains by.
class FilterChain {
public:
    /// `folder` takes its configuration. Throws std::runtime_error when it does not start.
    explicit FilterChain(const std::filesystem::path& folder);
    FilterChain(const FilterChain&) = delete;
    FilterChain& operator=(const FilterChain&) = delete;
    ~FilterChain();

    /// Sets the gain in dB of one band, from 0 up; it is on its way when this returns.
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
