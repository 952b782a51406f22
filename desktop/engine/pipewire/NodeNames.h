// The names of the equalizer's two nodes.
#pragma once

namespace brimsound::engine {

inline constexpr auto sinkName = "brimsound";
inline constexpr auto outputName = "brimsound.output";
/// The session manager never links nodes of the same link group to each other.
inline constexpr auto groupName = "brimsound";

} // namespace brimsound::engine
