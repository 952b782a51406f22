#include "platform/desktop/effects/Effects.h"

#include <utility>

namespace brimsound::desktop {

namespace {

EffectObserver* _observer = nullptr;
Reach currentReach = Reach::Everything;

} // namespace

EffectObserver& effects()
{
    static EffectObserver ignoring;
    return _observer ? *_observer : ignoring;
}

Reach reach()
{
    return currentReach;
}

void setReach(Reach reach)
{
    currentReach = reach;
}

EffectObserver* setEffectObserver(EffectObserver* observer)
{
    return std::exchange(_observer, observer);
}

} // namespace brimsound::desktop
