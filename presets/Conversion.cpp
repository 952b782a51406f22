#include "presets/Conversion.h"

#include "presets/Text.h"

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

namespace {

using audio::bandCount;
using audio::sliderLimit;

Conversion copy(const Positions& positions, Findings& findings)
{
    Conversion conversion;
    for (std::size_t band = 0; band < bandCount; ++band) {
        const double gain = positions.gains[band];
        conversion.gains[band] = std::clamp(gain, -sliderLimit, sliderLimit);
        if (conversion.gains[band] != gain)
            findings.warn({},
                "the gain of " + plain(gain) + " dB at " + frequencyText(audio::centers[band])
                    + " is limited to " + plain(conversion.gains[band]) + " dB");
    }
    return conversion;
}

Response curveThrough(const Positions& positions)
{
    Curve curve;
    for (std::size_t band = 0; band < bandCount; ++band)
        curve.push_back({ audio::centers[band], positions.gains[band] });
    return { {}, { curve }, true };
}

bool isPeak(FilterShape shape)
{
    return shape == FilterShape::Peak || shape == FilterShape::RlcPeak;
}

/// Whether the filter changes everything below its frequency.
bool reachesDown(FilterShape shape)
{
    return shape == FilterShape::LowShelf || shape == FilterShape::RlcLowShelf
        || shape == FilterShape::HighPass;
}

/// Whether the filter changes everything above its frequency.
bool reachesUp(FilterShape shape)
{
    return shape == FilterShape::HighShelf || shape == FilterShape::RlcHighShelf
        || shape == FilterShape::LowPass;
}

/// Bands only shape the sound between the lowest and the highest of them.
void reportLosses(const Filter& filter, Findings& findings)
{
    constexpr double lowest = 40;
    constexpr double highest = 18000;
    constexpr double narrowNotch = 3;
    const bool isPass = filter.shape == FilterShape::LowPass || filter.shape == FilterShape::HighPass;
    const bool hasEffect = filter.gain != 0 || isPass;
    const bool isDown = isPeak(filter.shape) || reachesDown(filter.shape);
    const bool isUp = isPeak(filter.shape) || reachesUp(filter.shape);
    const auto frequency = frequencyText(filter.frequency);
    if (filter.shape == FilterShape::Notch && filter.q > narrowNotch)
        findings.warn(filter.place, "a notch at " + frequency + " is narrower than the bands and is lost");
    else if (hasEffect && ((isDown && filter.frequency < lowest) || (isUp && filter.frequency > highest)))
        findings.warn(filter.place, "a filter at " + frequency + " is beyond the bands and is lost");
    else if (hasEffect && reachesDown(filter.shape))
        findings.note(filter.place,
            "the filter at " + frequency + " falls back to 0 dB below "
                + frequencyText(audio::centers.front()));
    else if (hasEffect && reachesUp(filter.shape))
        findings.note(filter.place,
            "the filter at " + frequency + " falls back to 0 dB above "
                + frequencyText(audio::centers.back()));
}

std::string bandsAtTheLimit(const audio::BandGains& gains)
{
    constexpr double close = 0.001;
    std::string bands;
    for (std::size_t band = 0; band < bandCount; ++band) {
        if (std::abs(gains[band]) < sliderLimit - close)
            continue;
        bands += (bands.empty() ? "" : ", ") + frequencyText(audio::centers[band]);
    }
    return bands;
}

Conversion fitted(const Response& response, Findings& findings)
{
    constexpr double roughRms = 1.5;
    constexpr double roughPeak = 4;
    for (const auto& filter : response.filters)
        reportLosses(filter, findings);
    const auto points = pointsOf(response);
    const auto level = response.levelIsKnown ? Level::Counts : Level::IsFree;
    Conversion conversion { fit(points, level), {} };
    const auto difference = compare(points, level, conversion.gains);
    conversion.difference = difference;
    if (const auto bands = bandsAtTheLimit(conversion.gains); !bands.empty())
        findings.warn({}, "more than 12 dB would be needed at " + bands);
    if (difference.rms >= roughRms || difference.largest >= roughPeak)
        findings.warn({},
            "ten bands only follow it roughly: up to " + fixed(difference.largest, 1) + " dB off, at "
                + frequencyText(difference.frequency));
    return conversion;
}

} // namespace

Conversion convert(const Target& target, Copying copying, Findings& findings)
{
    if (const auto* response = std::get_if<Response>(&target))
        return fitted(*response, findings);
    const auto& positions = std::get<Positions>(target);
    return copying == Copying::Allowed ? copy(positions, findings)
                                       : fitted(curveThrough(positions), findings);
}

std::string frequencyText(double frequency)
{
    constexpr double kilo = 1000;
    return frequency < kilo ? plain(std::round(frequency * 10) / 10) + " Hz"
                            : plain(std::round(frequency / 10) / 100) + " kHz";
}

} // namespace brimsound::presets
