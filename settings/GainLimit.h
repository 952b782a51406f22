#pragma once

namespace brimsound {

/// The limit of a gain in either direction, in dB. It applies to every slider, to the gain color and to the
/// bars of a curve.
inline constexpr float gainLimit = 12;

} // namespace brimsound
