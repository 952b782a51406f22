#include "presets/formats/Eqf.h"

#include "presets/Text.h"

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

namespace {

constexpr std::string_view magic = "Winamp EQ library file v1.1\x1a!--";
constexpr std::size_t nameSize = 257;
constexpr std::size_t recordSize = nameSize + audio::bandCount + 1;
/// Winamp's name for the only preset of a file.
constexpr auto nameless = "Entry1";

// Two values stand for the middle of a slider; 31 steps from either make 12 dB.
constexpr int upperMiddle = 31;
constexpr int lowerMiddle = 32;
constexpr int highest = 63;
constexpr double step = audio::sliderLimit / 31;

double gainOf(int value)
{
    return (value <= upperMiddle ? upperMiddle - value : lowerMiddle - value) * step;
}

char valueOf(double gain)
{
    const auto steps = static_cast<int>(std::lround(gain / step));
    return static_cast<char>(gain >= 0 ? upperMiddle - steps : lowerMiddle - steps);
}

ForeignPreset readRecord(std::string_view record, std::size_t number)
{
    ForeignPreset preset;
    const auto name = utf8From(record.substr(0, std::min(record.find('\0'), nameSize)));
    const auto place = "record " + std::to_string(number) + " " + inQuotes(name);
    if (record.size() < recordSize) {
        preset.findings.refuse(place, "the file ends within this preset");
        return preset;
    }
    preset.name = name;
    Positions positions;
    for (std::size_t band = 0; band < audio::bandCount; ++band) {
        const int value = static_cast<unsigned char>(record[nameSize + band]);
        if (value > highest) {
            preset.findings.refuse(place,
                "band " + std::to_string(band + 1) + " has the value " + std::to_string(value)
                    + ", which is not from 0 to 63");
            return preset;
        }
        positions.gains[band] = gainOf(value);
    }
    const int preamp = static_cast<unsigned char>(record[nameSize + audio::bandCount]);
    if (preamp <= highest)
        preset.findings.notePreamp(place, gainOf(preamp));
    preset.target = positions;
    return preset;
}

} // namespace

bool isEqf(std::string_view bytes)
{
    return bytes.starts_with(magic);
}

ForeignPresets readEqf(std::string_view bytes)
{
    if (!isEqf(bytes))
        return refusedFile({}, "not a Winamp equalizer file of version 1.1");
    bytes.remove_prefix(magic.size());
    if (bytes.empty())
        return refusedFile({}, "there is no preset in it");
    ForeignPresets presets;
    for (std::size_t number = 1; !bytes.empty(); ++number) {
        presets.push_back(readRecord(bytes.substr(0, recordSize), number));
        bytes.remove_prefix(std::min(recordSize, bytes.size()));
    }
    if (presets.size() == 1 && presets.front().name == nameless)
        presets.front().name.clear();
    return presets;
}

std::string writeEqf(std::span<const OwnPreset> presets, Findings& findings)
{
    std::string file(magic);
    for (const auto& preset : presets) {
        bool isExact = true;
        auto name = windows1252From(preset.name, isExact);
        if (!isExact)
            findings.warn({}, "the name " + inQuotes(preset.name) + " has characters that the format lacks");
        if (name.size() >= nameSize)
            findings.warn({}, "the name " + inQuotes(preset.name) + " is too long for the format and is cut");
        name.resize(nameSize - 1);
        file += name + '\0';
        for (const double gain : preset.gains)
            file += valueOf(gain);
        file += static_cast<char>(upperMiddle);
    }
    return file;
}

} // namespace brimsound::presets
