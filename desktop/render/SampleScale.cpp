#include "desktop/render/SampleScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brimsound::render {

namespace {

// 0 for a format that is not a plain integer.
int bitsOf(int format)
{
    switch (format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
        return 8;
    case SF_FORMAT_PCM_16:
        return 16;
    case SF_FORMAT_PCM_24:
        return 24;
    case SF_FORMAT_PCM_32:
        return 32;
    default:
        return 0;
    }
}

bool holdsAnyNumber(int format)
{
    const int encoding = format & SF_FORMAT_SUBMASK;
    return encoding == SF_FORMAT_FLOAT || encoding == SF_FORMAT_DOUBLE;
}

} // namespace

SampleScale::SampleScale(SNDFILE* file, int format)
{
    if (holdsAnyNumber(format)) {
        _lowest = std::numeric_limits<float>::lowest();
        _highest = std::numeric_limits<float>::max();
        return;
    }
    if (const int bits = bitsOf(format)) {
        sf_command(file, SFC_SET_NORM_FLOAT, nullptr, SF_FALSE);
        _unit = std::ldexp(1.0f, bits - 1);
    }
    _lowest = -_unit;
    // The largest integer. For 32 bits it is the largest value below full scale that a float can represent.
    _highest = _unit > 1 ? std::min(_unit - 1, std::nextafter(_unit, 0.0f)) : std::nextafter(1.0f, 0.0f);
}

void SampleScale::toFullScale(std::span<float> samples) const
{
    if (_unit == 1)
        return;
    for (auto& sample : samples)
        sample /= _unit;
}

void SampleScale::fromFullScale(std::span<float> samples) const
{
    for (auto& sample : samples)
        sample = std::clamp(sample * _unit, _lowest, _highest);
}

} // namespace brimsound::render
