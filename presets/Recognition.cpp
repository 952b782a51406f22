#include "presets/Recognition.h"

#include "presets/Text.h"
#include "presets/formats/BrimsoundJson.h"
#include "presets/formats/EasyEffects.h"
#include "presets/formats/Eqf.h"
#include "presets/formats/Json.h"
#include "presets/formats/TenNumbers.h"

#include <algorithm>
#include <array>

namespace brimsound::presets {

namespace {

Recognition recognizeJson(std::string_view text)
{
    Findings findings;
    const auto file = parseJson(text, findings);
    if (!file) {
        const auto& finding = findings.all().front();
        return { std::nullopt, finding.text, finding.place };
    }
    if (isBrimsoundJson(*file))
        return { Format::BrimsoundJson, {} };
    if (isEasyEffects(*file))
        return { Format::EasyEffects, {} };
    const bool isEqMac
        = file->is_array() && !file->empty() && file->front().is_object() && file->front().contains("gains");
    return { std::nullopt, isEqMac ? "this is a preset file of eqMac" : "this is JSON of an unknown kind" };
}

/// What a line shows by itself.
struct Mark {
    std::string_view start;
    std::optional<Format> format;
    std::string_view program;
};

constexpr std::array<Mark, 15> marks { {
    { "[Equalizer preset]", Format::Xmms, {} },
    { "[Presets]", Format::Xmms, {} },
    { "[apps_equalizer]", std::nullopt, "this is a preset of PulseEffects 1 to 3" },
    { "graphiceq_param=", std::nullopt,
        "this is a configuration of JamesDSP: copy its GraphicEQ text into a file" },
    { "graphiceq_enable=", std::nullopt,
        "this is a configuration of JamesDSP: copy its GraphicEQ text into a file" },
    { "context.modules", std::nullopt, "this is a configuration of PipeWire" },
    { "filter.graph", std::nullopt, "this is a configuration of PipeWire" },
    { "GraphicEQ:", Format::GraphicEq, {} },
    { "Filter", Format::EqualizerApo, {} },
    { "Preamp:", Format::EqualizerApo, {} },
    { "Channel:", Format::EqualizerApo, {} },
    { "Device:", Format::EqualizerApo, {} },
    { "Stage:", Format::EqualizerApo, {} },
    { "Include:", Format::EqualizerApo, {} },
    { "If:", Format::EqualizerApo, {} },
} };

/// A file that was meant for Equalizer APO may begin with any text, and one of sections with any of them, so
/// the first line that shows anything counts.
std::optional<Recognition> recognizeLine(std::string_view line)
{
    for (const auto& mark : marks) {
        if (!startsWithInAnyCase(line, mark.start))
            continue;
        if (mark.start == "Filter" && line.find(':') == std::string_view::npos)
            continue;
        return Recognition { mark.format, std::string(mark.program) };
    }
    return std::nullopt;
}

std::string describe(std::string_view text)
{
    constexpr std::size_t feqBands = 18;
    if (!isNumbers(text))
        return "this is no known kind of preset";
    return wordsOf(text, " \t\r\n").size() == feqBands ? "this is a preset of foobar2000, with 18 bands"
                                                       : "these are not ten numbers";
}

} // namespace

Recognition recognize(std::string_view contents)
{
    if (isEqf(contents))
        return { Format::Eqf, {} };
    if (contents.starts_with("Winamp EQ library file"))
        return { std::nullopt, "this is a Winamp equalizer file of another version" };
    if (contents.starts_with("\xff\xfe") || contents.starts_with("\xfe\xff"))
        return { std::nullopt, "this text is in UTF-16: save it as UTF-8" };
    if (contents.find('\0') != std::string_view::npos)
        return { std::nullopt, "this is a binary file" };
    const auto start = contents.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos)
        return { std::nullopt, "the file is empty" };

    const bool mayBeJson = contents[start] == '{' || contents[start] == '[';
    auto json = mayBeJson ? recognizeJson(contents) : Recognition();
    if (json.format)
        return json;
    for (const auto line : linesOf(contents)) {
        if (const auto recognition = recognizeLine(trimmed(line)))
            return *recognition;
    }
    if (mayBeJson)
        return json;
    const auto numbers = readTenNumbers(contents);
    if (isNumbers(contents) && !numbers.front().findings.haveErrors())
        return { Format::TenNumbers, {} };
    return { std::nullopt, describe(contents) };
}

} // namespace brimsound::presets
