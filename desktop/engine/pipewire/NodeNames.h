// What the equalizer's two nodes are called.
#pragma once

namespace brimsound::engine {

inline constexpr auto sinkName = "brimsound";
inline constexpr auto outputName = "brimsound.output";
/// Nodes of one link group are never linked to each other, whatever they are told to play to.
inline constexpr auto groupName = "brimsound";

} // namespace brimsound::engine
