// Exporting presets and importing them again.
#pragma once

#include "presets/Conversion.h"
#include "presets/Exporting.h"
#include "settings/TenGains.h"
#include "settings/store/presets.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace brimsound::tests {

using GainSets = std::vector<audio::BandGains>;

struct RoundTrip {
    const char* name;
    presets::Format format;
    /// The largest error in dB of a built-in preset, or of all sliders at one end.
    double limit;
    /// The same for random gains.
    double limitOfRandomSets;
};

inline constexpr std::array<RoundTrip, 5> roundTrips { {
    { "Json", presets::Format::BrimsoundJson, 0, 0 },
    { "Eqf", presets::Format::Eqf, 0.2, 0.2 },
    { "EqualizerApo", presets::Format::EqualizerApo, 0.01, 0.02 },
    { "EasyEffects", presets::Format::EasyEffects, 0.01, 0.01 },
    { "GraphicEq", presets::Format::GraphicEq, 0.15, 0.15 },
} };

inline GainSets builtInSets()
{
    GainSets sets;
    for (const auto& [name, preset] : builtin_presets())
        std::ranges::copy(tenGains(preset), sets.emplace_back().begin());
    return sets;
}

inline audio::BandGains allSlidersAt(double gain)
{
    audio::BandGains gains {};
    gains.fill(gain);
    return gains;
}

/// In steps of 0.01 dB. The same sets every time.
inline GainSets randomSets(std::size_t count)
{
    std::mt19937 random(1);
    // Not std::uniform_real_distribution, whose numbers differ between libraries.
    GainSets sets(count);
    for (auto& set : sets) {
        for (auto& gain : set)
            gain = static_cast<double>(random() % 2401) / 100 - 12;
    }
    return sets;
}

/// The largest difference in dB between sliders and what they become after an export and an import. Infinite
/// when one cannot be imported.
inline double largestError(const GainSets& sets, presets::Format format)
{
    double largest = 0;
    for (const auto& gains : sets) {
        const presets::OwnPreset preset { "Preset", gains };
        presets::Findings findings;
        const auto file = presets::exported({ &preset, 1 }, format, findings);
        const auto read = presets::readPresets(file, {}, {}).front();
        if (read.findings.haveErrors())
            return std::numeric_limits<double>::infinity();
        const auto again = presets::convert(read.target, presets::Copying::Allowed, findings);
        for (std::size_t band = 0; band < gains.size(); ++band)
            largest = std::max(largest, std::abs(again.gains[band] - gains[band]));
    }
    return largest;
}

} // namespace brimsound::tests
