#include "presets/formats/ApoFilter.h"

#include "presets/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace brimsound::presets {

namespace {

using Use = ApoFilter::Use;

/// What a type of filter takes besides its frequency.
enum class Parameters { GainAndQ, OptionalQ, Shelf, AllPass };

struct Type {
    std::string_view name;
    FilterShape shape;
    Parameters parameters;
    double defaultQ = std::numbers::sqrt2 / 2;
    /// Whether the frequency of a shelf with a slope is its corner.
    bool isCorner = false;
};

// The types of Equalizer APO's "Configuration reference".
constexpr std::array<Type, 15> types { {
    { "PK", FilterShape::Peak, Parameters::GainAndQ },
    { "PEQ", FilterShape::Peak, Parameters::GainAndQ },
    { "Modal", FilterShape::Peak, Parameters::GainAndQ },
    { "LP", FilterShape::LowPass, Parameters::OptionalQ },
    { "LPQ", FilterShape::LowPass, Parameters::OptionalQ },
    { "HP", FilterShape::HighPass, Parameters::OptionalQ },
    { "HPQ", FilterShape::HighPass, Parameters::OptionalQ },
    { "BP", FilterShape::BandPass, Parameters::OptionalQ },
    { "NO", FilterShape::Notch, Parameters::OptionalQ, 30 },
    { "AP", FilterShape::Peak, Parameters::AllPass },
    { "LS", FilterShape::LowShelf, Parameters::Shelf, 0, true },
    { "HS", FilterShape::HighShelf, Parameters::Shelf, 0, true },
    { "LSC", FilterShape::LowShelf, Parameters::Shelf },
    { "HSC", FilterShape::HighShelf, Parameters::Shelf },
    { "None", FilterShape::Peak, Parameters::AllPass },
} };

/// The numbers of a line, where it has them.
struct Numbers {
    std::optional<double> frequency;
    std::optional<double> gain;
    std::optional<double> q;
    /// In octaves.
    std::optional<double> bandwidth;
    /// In dB per octave.
    std::optional<double> slope;
};

/// The length of the no-break space that the text begins with, or 0. Text in the ANSI code page has it as one
/// byte.
std::size_t noBreakSpace(std::string_view text)
{
    constexpr std::array<std::string_view, 3> spaces { "\xc2\xa0", "\xe2\x80\xaf", "\xa0" };
    const auto* space = std::ranges::find_if(spaces, [&](auto known) { return text.starts_with(known); });
    return space == spaces.end() ? 0 : space->size();
}

/// With points for commas. A no-break space between digits separates thousands and is dropped; elsewhere it
/// becomes a blank.
std::string normalized(std::string_view text)
{
    std::string line;
    while (!text.empty()) {
        const auto space = noBreakSpace(text);
        if (space == 0)
            line += text.front() == ',' ? '.' : text.front();
        text.remove_prefix(std::max<std::size_t>(space, 1));
        const bool isInside = !line.empty() && isDigit(line.back()) && !text.empty() && isDigit(text.front());
        if (space > 0 && !isInside)
            line += ' ';
    }
    return line;
}

/// Whether the point that the text begins with separates thousands: exactly three digits follow.
bool isBeforeGroup(std::string_view text)
{
    constexpr std::size_t end = 4;
    return std::min(text.find_first_not_of("0123456789", 1), text.size()) == end
        && (text.size() == end || text[end] == '.');
}

std::optional<double> readFrequency(std::string_view word)
{
    const auto length = std::min(word.find_first_not_of("0123456789.+-eE"), word.size());
    std::string number;
    for (std::size_t i = 0; i < length; ++i) {
        if (word[i] != '.' || !isBeforeGroup(word.substr(i, length - i)))
            number += word[i];
    }
    std::string_view rest = number.empty() ? word : std::string_view(number);
    return takeNumber(rest);
}

Numbers readNumbers(const std::vector<std::string_view>& words)
{
    Numbers numbers;
    const auto number = [&](std::size_t i) -> std::optional<double> {
        if (i >= words.size())
            return std::nullopt;
        auto word = words[i];
        return takeNumber(word);
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (areEqualInAnyCase(words[i], "Fc"))
            numbers.frequency = i + 1 < words.size() ? readFrequency(words[++i]) : std::nullopt;
        else if (areEqualInAnyCase(words[i], "Gain"))
            numbers.gain = number(++i);
        else if (areEqualInAnyCase(words[i], "Q"))
            numbers.q = number(++i);
        else if (areEqualInAnyCase(words[i], "BW"))
            numbers.bandwidth = number(i += 2);
        else if (areEqualInAnyCase(words[i], "T60"))
            i += 2;
        else if (i == 0)
            numbers.slope = number(i);
    }
    return numbers;
}

double qOfBandwidth(double octaves, double frequency)
{
    const double omega = 2 * std::numbers::pi * frequency / comparisonRate;
    return 1 / (2 * std::sinh(std::numbers::ln2 / 2 * octaves * omega / std::sin(omega)));
}

/// A shelf of Equalizer APO has its Q, a slope, or neither. With LS and HS, a frequency that comes with a Q
/// or a slope is where the shelf begins.
void shapeShelf(Filter& filter, const Type& type, const Numbers& numbers)
{
    constexpr double defaultSlope = 0.9;
    constexpr double steepest = 12;
    const bool isSlope = !numbers.q;
    const double slope = numbers.q ? shelfSlope(filter.gain, *numbers.q)
        : numbers.slope            ? *numbers.slope / steepest
                                   : defaultSlope;
    filter.q = isSlope ? shelfQ(filter.gain, slope) : *numbers.q;
    if (!type.isCorner || (!numbers.q && !numbers.slope))
        return;
    const double factor = std::pow(10, std::abs(filter.gain) / (80 * slope));
    filter.frequency *= filter.shape == FilterShape::LowShelf ? factor : 1 / factor;
}

ApoFilter skipped(std::string reason)
{
    return { Use::Skipped, {}, std::move(reason) };
}

ApoFilter refused(std::string reason)
{
    return { Use::Refused, {}, std::move(reason) };
}

ApoFilter checked(const Filter& filter)
{
    if (isMeaningless(filter))
        return refused("a filter's numbers must be finite, its frequency and Q above 0");
    if (const auto reason = unusable(filter))
        return skipped("filter skipped: " + std::string(*reason));
    return { Use::On, filter, {} };
}

ApoFilter filterOf(const Type& type, const Numbers& numbers)
{
    if (!numbers.frequency)
        return skipped("filter without a frequency (Fc), line skipped");
    const bool takesGain = type.parameters == Parameters::GainAndQ || type.parameters == Parameters::Shelf;
    if (takesGain && !numbers.gain)
        return skipped("filter without a gain, line skipped");
    Filter filter { type.shape, *numbers.frequency, takesGain ? *numbers.gain : 0, 1 };
    switch (type.parameters) {
    case Parameters::GainAndQ:
        if (!numbers.q && !numbers.bandwidth)
            return skipped("filter without a Q or a bandwidth, line skipped");
        if (numbers.bandwidth && (!(*numbers.bandwidth > 0) || !std::isfinite(*numbers.bandwidth)))
            return refused("the bandwidth must be a number above 0");
        filter.q = numbers.q ? *numbers.q : 1;
        if (!numbers.q && !isMeaningless(filter) && !unusable(filter))
            filter.q = qOfBandwidth(*numbers.bandwidth, filter.frequency);
        break;
    case Parameters::Shelf:
        if (numbers.slope && (!(*numbers.slope > 0) || !std::isfinite(*numbers.slope)))
            return refused("the slope must be a number above 0");
        filter.q = numbers.q.value_or(1);
        if (!isMeaningless(filter) && !unusable(filter))
            shapeShelf(filter, type, numbers);
        break;
    default:
        filter.q = numbers.q.value_or(type.defaultQ);
    }
    return checked(filter);
}

} // namespace

ApoFilter readApoFilter(std::string_view parameters)
{
    const auto line = normalized(parameters);
    auto words = wordsOf(line, " \t");
    if (words.empty())
        return skipped("filter without a type, line skipped");
    if (areEqualInAnyCase(words[0], "OFF"))
        return {};
    if (!areEqualInAnyCase(words[0], "ON"))
        return skipped("filter is neither ON nor OFF, line skipped");
    if (words.size() < 2)
        return skipped("filter without a type, line skipped");

    const auto type = std::ranges::find_if(
        types, [&](const Type& known) { return areEqualInAnyCase(known.name, words[1]); });
    if (areEqualInAnyCase(words[1], "IIR"))
        return skipped("filters given by coefficients (IIR) are not supported, line skipped");
    if (type == types.end())
        return skipped("unknown filter type " + inQuotes(words[1]) + ", line skipped");
    // An all-pass filter only changes the phase.
    if (type->parameters == Parameters::AllPass)
        return {};
    words.erase(words.begin(), words.begin() + 2);
    return filterOf(*type, readNumbers(words));
}

std::optional<double> readApoPreamp(std::string_view parameters)
{
    const auto line = normalized(parameters);
    auto text = trimmed(line);
    return takeNumber(text);
}

} // namespace brimsound::presets
