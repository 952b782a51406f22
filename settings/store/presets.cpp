#include "settings/store/presets.h"

#include "settings/tweak.h"

#include <array>
#include <utility>

namespace brimsound {

namespace {

/// Built-in gains are whole numbers of steps; 31 steps make 12 dB.
constexpr double stepsToDecibels = 12.0 / 31.0;

struct BuiltinPreset {
    const char* name;
    std::array<int, 10> steps;
};

// clang-format off
constexpr std::array<BuiltinPreset, 16> table { {
    { "Flat", { { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 } } },
    { "Full bass", { { 15, 15, 15, 9, 2, -8, -15, -18, -19, -19 } } },
    { "Full bass/treble", { { 11, 9, 0, -13, -9, 2, 13, 17, 19, 19 } } },
    { "Classical", { { 0, 0, 0, 0, 0, 0, -13, -13, -13, -17 } } },
    { "Club", { { 0, 0, 5, 9, 9, 9, 5, 0, 0, 0 } } },
    { "Dance", { { 15, 11, 3, -1, -1, -11, -13, -13, -1, -1 } } },
    { "Earbuds", { { 7, 17, 8, -7, -5, 2, 7, 15, 20, 23 } } },
    { "Large Hall", { { 16, 16, 9, 9, 0, -9, -9, -9, 0, 0 } } },
    { "Live", { { -9, 0, 6, 8, 9, 9, 6, 4, 4, 3 } } },
    { "Party", { { 11, 11, 0, 0, 0, 0, 0, 0, 11, 11 } } },
    { "Pop", { { -4, 7, 11, 12, 8, -3, -5, -5, -4, -4 } } },
    { "Reggae", { { 0, 0, -2, -11, 0, 10, 10, 0, 0, 0 } } },
    { "Rock", { { 12, 7, -10, -14, -7, 6, 14, 17, 17, 17 } } },
    { "Soft", { { 7, 2, -3, -5, -3, 6, 13, 15, 17, 19 } } },
    { "Techno", { { 12, 9, 0, -10, -9, 0, 12, 15, 15, 14 } } },
    { "Full treble", { { -17, -17, -17, -8, 4, 17, 25, 25, 25, 27 } } },
} };
// clang-format on

PropertyList::Array gains(const std::array<int, 10>& steps)
{
    PropertyList::Array decibels;
    decibels.reserve(steps.size());
    for (const int step : steps)
        decibels.emplace_back(static_cast<float>(step * stepsToDecibels));
    return decibels;
}

} // namespace

PropertyList::Dictionary builtin_presets()
{
    PropertyList::Dictionary presets;
    for (const auto& preset : table)
        presets.set(preset.name, gains(preset.steps));
    return presets;
}

PropertyList::Dictionary take_presets(PropertyList::Dictionary& preferences)
{
    auto* presets = dictionaryForKey(preferences, presetsKey);
    return presets && !presets->empty() ? std::move(*presets) : builtin_presets();
}

} // namespace brimsound
