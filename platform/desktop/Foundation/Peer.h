// The desktop's part of every object.
#pragma once

#include <cstddef>

namespace brimsound {

/// Holds an object's reference count. Classes with more state behind them derive their own peer.
struct Peer {
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    std::size_t retainCount = 1;
};

} // namespace brimsound
