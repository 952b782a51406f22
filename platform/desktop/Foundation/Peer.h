#pragma once

#include <cstddef>

namespace brimsound {

/// The desktop's part of an object: its reference count. Classes with more state derive their own peer.
struct Peer {
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    std::size_t retainCount = 1;
};

} // namespace brimsound
