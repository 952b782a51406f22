#include "platform/desktop/effects/Effects.h"

#include <utility>

namespace brimsound::desktop {

namespace {

EffectObserver* _observer = nullptr;

}

EffectObserver& effects()
{
    static EffectObserver ignoring;
    return _observer ? *_observer : ignoring;
}

EffectObserver* setEffectObserver(EffectObserver* observer)
{
    return std::exchange(_observer, observer);
}

} // namespace brimsound::desktop
