// The engine of a build without PipeWire.
#include "desktop/engine/SoundEngine.h"

#include <utility>

namespace brimsound::engine {

class SoundEngine::Implementation { };

SoundEngine::SoundEngine(sd_event*, const Settings&, Reports reports)
{
    if (const auto problem = std::move(reports.problem))
        problem("this build has no PipeWire: sound is not equalized");
}

SoundEngine::~SoundEngine() = default;

void SoundEngine::set(const Settings&) { }

} // namespace brimsound::engine
