// What the media server prints.
#pragma once

#include "desktop/engine/SoundEngine.h"
#include "desktop/mediaserverd/Equalizer.h"

namespace brimsound::mediaserver {

/// A line of JSON on standard output: {"vals":[…]}.
void print(const Gains&);

/// Problems go to standard error. The rest is printed when that is wanted, a line of JSON each on standard
/// output: {"connected":true}, {"output":"speakers"}, {"layout":["FL","FR"]}, {"rate":48000},
/// {"headroom":-1.5}, {"limited":12}.
engine::Reports reports(bool printed);

} // namespace brimsound::mediaserver
