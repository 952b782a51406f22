#include "presets/formats/EasyEffects.h"

#include "presets/Text.h"
#include "presets/formats/Json.h"

#include <array>
#include <cmath>

namespace brimsound::presets {

namespace {

using nlohmann::json;

// What EasyEffects takes for keys that are missing.
constexpr double defaultQ = 4.36;
constexpr auto defaultMode = "RLC (BT)";
constexpr std::size_t defaultBandCount = 32;

/// A value in the file, with its path for messages.
struct Node {
    const json* value;
    std::string path;

    bool exists() const { return value != nullptr; }
    bool isObject() const { return value && value->is_object(); }

    Node operator[](const std::string& key) const
    {
        const auto found = isObject() ? value->find(key) : json::const_iterator();
        const bool isMissing = !isObject() || found == value->end();
        return { isMissing ? nullptr : &*found, path.empty() ? key : path + "." + key };
    }

    std::optional<double> number() const { return value ? numberOf(*value) : std::nullopt; }

    std::string text(const char* fallback = "") const
    {
        const auto* string = value ? value->get_ptr<const json::string_t*>() : nullptr;
        return string ? *string : fallback;
    }

    bool flag(bool fallback) const
    {
        if (value && value->is_boolean())
            return value->get<bool>();
        const auto word = text();
        return word == "true" || (word != "false" && fallback);
    }
};

struct Shape {
    std::string_view type;
    FilterShape cookbook;
    /// The same in the mode RLC.
    FilterShape rlc;
    bool hasGain;
};

constexpr std::array<Shape, 7> shapes { {
    { "Bell", FilterShape::Peak, FilterShape::RlcPeak, true },
    { "Lo-shelf", FilterShape::LowShelf, FilterShape::RlcLowShelf, true },
    { "Hi-shelf", FilterShape::HighShelf, FilterShape::RlcHighShelf, true },
    { "Lo-pass", FilterShape::LowPass, FilterShape::LowPass, false },
    { "Hi-pass", FilterShape::HighPass, FilterShape::HighPass, false },
    { "Bandpass", FilterShape::BandPass, FilterShape::BandPass, false },
    { "Notch", FilterShape::Notch, FilterShape::Notch, false },
} };

class EasyEffectsReader {
public:
    explicit EasyEffectsReader(const ReadingOptions& options)
        : _isLeft(options.channel == ReadingOptions::Channel::Left)
    {
    }

    ForeignPreset read(std::string_view text)
    {
        const auto file = parseJson(text, findings());
        if (!file)
            return _preset;
        const Node root { &*file, {} };
        const auto chain = root["output"].isObject() ? root["output"] : root["input"];
        if (!chain.isObject())
            findings().refuse({}, R"(there is no "output" and no "input")");
        else
            readChain(chain);
        if (!findings().haveErrors() && !_hasEqualizer)
            findings().refuse(chain.path, "there is no equalizer that is switched on");
        else if (!findings().haveErrors() && _response.filters.empty())
            findings().refuse(chain.path, "there is no band that is on");
        _preset.target = std::move(_response);
        return _preset;
    }

private:
    Findings& findings() { return _preset.findings; }

    /// PulseEffects lists all effects, most of them with a "state" of false.
    static bool isSwitchedOff(const Node& effect)
    {
        return effect["bypass"].flag(false) || !effect["state"].flag(true);
    }

    void readChain(const Node& chain)
    {
        const auto order = chain["plugins_order"];
        if (!order.exists() || !order.value->is_array()) {
            findings().refuse(order.path, "there is no list of the effects");
            return;
        }
        for (const auto& entry : *order.value) {
            const auto* name = entry.get_ptr<const json::string_t*>();
            if (!name) {
                findings().warn(order.path, "an effect without a name is left out");
            } else if (*name != "equalizer" && !name->starts_with("equalizer#")) {
                if (!isSwitchedOff(chain[*name]))
                    findings().warn(order.path, "the effect " + inQuotes(*name) + " is left out");
            } else if (const auto equalizer = chain[*name]; equalizer.isObject()) {
                readEqualizer(equalizer);
            } else {
                findings().refuse(equalizer.path, "it is listed, but missing");
            }
            if (findings().haveErrors())
                return;
        }
    }

    void readEqualizer(const Node& equalizer)
    {
        if (isSwitchedOff(equalizer)) {
            findings().warn(equalizer.path, "it is switched off and left out");
            return;
        }
        _hasEqualizer = true;
        for (const auto& level : { equalizer["input-gain"], equalizer["output-gain"] })
            readPreamp(level);
        const auto left = equalizer["left"];
        const auto right = equalizer["right"];
        const bool isSplit = equalizer["split-channels"].flag(true);
        const bool bandsDiffer = isSplit && left.exists() && right.exists() && *left.value != *right.value;
        const auto leftPitch = equalizer["pitch-left"].number().value_or(0);
        const auto rightPitch = equalizer["pitch-right"].number().value_or(0);
        if (bandsDiffer || leftPitch != rightPitch)
            findings().warn(equalizer.path,
                std::string("the channels differ: the ") + (_isLeft ? "left" : "right") + " one is taken");
        if (const auto balance = equalizer["balance"].number(); balance && *balance != 0)
            findings().warn(equalizer["balance"].path, "the balance is left out");
        readBands(_isLeft || !isSplit ? left : right, equalizer["num-bands"],
            std::pow(2, (_isLeft ? leftPitch : rightPitch) / 12));
    }

    void readPreamp(const Node& level)
    {
        const auto gain = level.number().value_or(0);
        if (std::isfinite(gain))
            findings().notePreamp(level.path, gain);
        else
            findings().refuse(level.path, "the preamp must be a finite number");
    }

    void readBands(const Node& channel, const Node& countNode, double pitch)
    {
        if (!channel.isObject()) {
            findings().refuse(channel.path, "there are no bands");
            return;
        }
        const auto count = countNode.exists() ? countNode.number() : defaultBandCount;
        if (!count || !(*count >= 0) || *count > static_cast<double>(mostItems - _bands)) {
            findings().refuse(countNode.path, "not a number of bands up to " + std::to_string(mostItems));
            return;
        }
        for (std::size_t i = 0; i < static_cast<std::size_t>(*count) && !findings().haveErrors(); ++i) {
            ++_bands;
            const auto band = channel["band" + std::to_string(i)];
            if (band.isObject())
                readBand(band, pitch);
            else
                findings().refuse(band.path, "the band is missing");
        }
    }

    void readBand(const Node& band, double pitch)
    {
        const auto type = band["type"].text("Bell");
        if (type == "Off" || type == "Allpass" || band["mute"].flag(false))
            return;
        if (band["solo"].flag(false))
            findings().warn(band["solo"].path, "\"solo\" is ignored: the other bands are taken too");
        const Shape* shape = nullptr;
        for (const auto& known : shapes) {
            if (known.type == type)
                shape = &known;
        }
        if (!shape) {
            findings().warn(
                band["type"].path, "filters of type " + inQuotes(type) + " are not supported, band skipped");
            return;
        }
        Filter filter { shape->cookbook };
        const auto frequency = band["frequency"].number();
        const auto gain = band["gain"].exists() ? band["gain"].number() : 0;
        const auto q = band["q"].exists() ? band["q"].number() : defaultQ;
        if (!frequency || !gain || !q) {
            findings().warn(band.path, "its frequency, gain or Q is no number, band skipped");
            return;
        }
        filter.frequency = *frequency * pitch;
        filter.gain = shape->hasGain ? *gain : 0;
        filter.q = *q;
        filter.place = band.path;
        applyMode(band, *shape, filter);
        add(band, filter);
    }

    /// The mode decides on the formula of a filter, the slope on the number of equal ones.
    void applyMode(const Node& band, const Shape& shape, Filter& filter)
    {
        const auto mode = band["mode"].text(defaultMode);
        const auto slope = band["slope"].text("x1");
        const bool isKnownSlope = slope.size() == 2 && slope[0] == 'x' && '1' <= slope[1] && slope[1] <= '4';
        const int stages = isKnownSlope ? slope[1] - '0' : 1;
        const bool isRlc = mode.starts_with("RLC");
        if (isRlc)
            filter.shape = shape.rlc;
        if (isRlc && shape.type == "Bell")
            filter.stages = stages;
        else if (stages != 1 || !isKnownSlope)
            findings().warn(band["slope"].path, "the slope " + inQuotes(slope) + " is taken as \"x1\"");

        const bool isExact = mode == "APO (DR)" || (mode == "RLC (BT)" && shape.rlc != shape.cookbook);
        if (!isExact)
            findings().warn(band["mode"].path,
                "the mode " + inQuotes(mode) + " is taken as "
                    + (isRlc && shape.hasGain ? "\"RLC (BT)\"" : "\"APO (DR)\""));
    }

    void add(const Node& band, const Filter& filter)
    {
        if (isMeaningless(filter))
            findings().refuse(band.path, "its numbers must be finite, its frequency and Q above 0");
        else if (const auto reason = unusable(filter))
            findings().warn(band.path, "band skipped: " + std::string(*reason));
        else
            _response.filters.push_back(filter);
    }

    bool _isLeft;
    ForeignPreset _preset;
    Response _response;
    bool _hasEqualizer = false;
    std::size_t _bands = 0;
};

} // namespace

bool isEasyEffects(const json& file)
{
    return file.is_object() && (file.contains("output") || file.contains("input"));
}

ForeignPresets readEasyEffects(std::string_view text, const ReadingOptions& options)
{
    return { EasyEffectsReader(options).read(text) };
}

} // namespace brimsound::presets
