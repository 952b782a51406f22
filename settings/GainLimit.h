// How far gains go.
#pragma once

namespace brimsound {

/// A gain's range either way, in dB: that of every slider, of the gain color and of a curve's bars.
inline constexpr float gainLimit = 12;

} // namespace brimsound
