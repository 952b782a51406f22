#include "presets/formats/TenNumbers.h"

#include "presets/Text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace brimsound::presets {

namespace {

constexpr std::string_view key = "equalizer-bands=";
constexpr std::string_view blanks = " \t\r\n;";

std::string_view listOf(std::string_view text)
{
    const auto start = std::min(text.find_first_not_of(blanks), text.size());
    text.remove_prefix(start);
    if (text.starts_with(key))
        text.remove_prefix(key.size());
    return text;
}

/// A comma separates decimals when there are ten numbers without it, otherwise numbers.
std::string normalized(std::string_view list)
{
    std::string numbers(list);
    const auto words = wordsOf(list, blanks);
    const bool isDecimal = words.size() == audio::bandCount && list.find('.') == std::string_view::npos
        && std::ranges::none_of(words, [](std::string_view word) { return word.ends_with(','); });
    std::ranges::replace(numbers, ',', isDecimal ? '.' : ' ');
    return numbers;
}

} // namespace

bool isNumbers(std::string_view text)
{
    const auto list = listOf(text);
    const auto numbers = normalized(list);
    const auto words = wordsOf(numbers, blanks);
    return !words.empty()
        && std::ranges::all_of(words, [](std::string_view word) { return numberFrom(word).has_value(); });
}

ForeignPresets readTenNumbers(std::string_view text)
{
    const auto numbers = normalized(listOf(text));
    const auto words = wordsOf(numbers, blanks);
    if (words.size() != audio::bandCount)
        return refusedFile({}, "there are " + std::to_string(words.size()) + " numbers instead of ten");
    ForeignPresets presets(1);
    Positions positions;
    for (std::size_t band = 0; band < audio::bandCount; ++band) {
        const auto gain = numberFrom(words[band]);
        if (!gain || !std::isfinite(*gain))
            return refusedFile(
                {}, "number " + std::to_string(band + 1) + " is no gain: " + inQuotes(words[band]));
        positions.gains[band] = *gain;
    }
    presets.front().target = positions;
    return presets;
}

} // namespace brimsound::presets
