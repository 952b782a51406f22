#pragma once

namespace brimsound::audio {

/// Two numbers that are processed in parallel: arithmetic on pairs is by element.
using Pair [[gnu::vector_size(16)]] = double;

/// The same number twice.
inline Pair pair(double both)
{
    return Pair { both, both };
}

} // namespace brimsound::audio
