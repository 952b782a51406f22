// The engine of a build without a sound server to talk to.
#include "desktop/engine/SoundEngine.h"

namespace brimsound::engine {

class SoundEngine::Implementation { };

SoundEngine::SoundEngine(sd_event*, const Settings&, Reports reports)
{
    if (reports.problem)
        reports.problem("this build has no PipeWire: sound is played as it is");
}

SoundEngine::~SoundEngine() = default;

void SoundEngine::set(const Settings&) { }

} // namespace brimsound::engine
