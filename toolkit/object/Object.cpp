#include "toolkit/object/Object.h"

#include <utility>

namespace brimsound::toolkit {

void Object::release() const
{
    if (--_retainCount != 0)
        return;
    // References that are added and released during the destruction must not destroy the object again.
    _retainCount = 1;
    if (auto* counterpart = std::exchange(_counterpart, nullptr))
        _destroy(counterpart);
    delete this;
}

void Object::setCounterpart(void* counterpart, void (*destroy)(void*))
{
    _counterpart = counterpart;
    _destroy = destroy;
}

} // namespace brimsound::toolkit
