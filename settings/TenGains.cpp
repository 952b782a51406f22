#include "settings/TenGains.h"

namespace brimsound {

bool hasTenGains(const PropertyList& preset)
{
    const auto* values = preset.asArray();
    return values && values->size() >= TenGains().size();
}

TenGains tenGains(const PropertyList& preset)
{
    TenGains gains {};
    if (const auto* values = preset.asArray()) {
        for (std::size_t i = 0; i < gains.size() && i < values->size(); ++i)
            gains[i] = (*values)[i].floatValue();
    }
    return gains;
}

} // namespace brimsound
