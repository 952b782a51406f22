#include "presets/ForeignPreset.h"

#include <utility>

namespace brimsound::presets {

ForeignPresets refusedFile(std::string place, std::string reason)
{
    ForeignPresets presets(1);
    presets.front().findings.refuse(std::move(place), std::move(reason));
    return presets;
}

} // namespace brimsound::presets
