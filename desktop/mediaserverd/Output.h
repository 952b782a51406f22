// The output of the media server.
#pragma once

#include "desktop/engine/SoundEngine.h"
#include "desktop/mediaserverd/Equalizer.h"

namespace brimsound::mediaserver {

/// Prints a line of JSON to standard output: {"vals":[…]}.
void print(const Gains&);

/// The callbacks that print reports. Problems are printed to standard error. The other reports are printed
/// only if `printed`, each as a line of JSON on standard output: {"connected":true}, {"output":"speakers"},
/// {"layout":["FL","FR"]}, {"rate":48000}, {"headroom":-1.5}, {"limited":12}.
engine::Reports reports(bool printed);

} // namespace brimsound::mediaserver
