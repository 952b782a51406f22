#include "presets/Reading.h"

#include "presets/Recognition.h"
#include "presets/formats/BrimsoundJson.h"
#include "presets/formats/EasyEffects.h"
#include "presets/formats/Eqf.h"
#include "presets/formats/EqualizerApo.h"
#include "presets/formats/TenNumbers.h"
#include "presets/formats/Xmms.h"

#include <array>
#include <utility>

namespace brimsound::presets {

namespace {

constexpr std::array<std::pair<std::string_view, Format>, 7> names { {
    { "eqf", Format::Eqf },
    { "apo", Format::EqualizerApo },
    { "graphiceq", Format::GraphicEq },
    { "easyeffects", Format::EasyEffects },
    { "xmms", Format::Xmms },
    { "numbers", Format::TenNumbers },
    { "json", Format::BrimsoundJson },
} };

constexpr auto readable
    = "files that can be read: Winamp EQF, Equalizer APO and AutoEq text, GraphicEQ curves, EasyEffects and "
      "PulseEffects 4 JSON, XMMS and Audacious presets, ten numbers, and brimsound-presets JSON";

constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";

ForeignPresets read(std::string_view contents, Format format, const ReadingOptions& options)
{
    switch (format) {
    case Format::Eqf:
        return readEqf(contents);
    case Format::EqualizerApo:
    case Format::GraphicEq:
        return readEqualizerApo(contents, options);
    case Format::EasyEffects:
        return readEasyEffects(contents, options);
    case Format::Xmms:
        return readXmms(contents, options);
    case Format::TenNumbers:
        return readTenNumbers(contents);
    case Format::BrimsoundJson:
        return readBrimsoundJson(contents);
    }
    return refusedFile({}, "unknown format");
}

} // namespace

std::optional<Format> formatNamed(std::string_view name)
{
    for (const auto& [known, format] : names) {
        if (known == name)
            return format;
    }
    return std::nullopt;
}

ForeignPresets readPresets(
    std::string_view contents, std::optional<Format> format, const ReadingOptions& options)
{
    if (contents.starts_with(byteOrderMark))
        contents.remove_prefix(byteOrderMark.size());
    if (format)
        return read(contents, *format, options);
    const auto recognition = recognize(contents);
    if (!recognition.format) {
        auto refused = refusedFile(recognition.place, recognition.reason);
        refused.front().findings.note({}, readable);
        return refused;
    }
    return read(contents, *recognition.format, options);
}

} // namespace brimsound::presets
