#include "desktop/render/Gains.h"

#include <algorithm>

namespace brimsound::render {

double autoPreamp(const audio::BandGains& gains)
{
    return -std::max(-audio::sliderLimit, *std::ranges::max_element(gains));
}

} // namespace brimsound::render
