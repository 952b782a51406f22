#include "presets/formats/EqualizerApo.h"

#include "presets/Text.h"
#include "presets/formats/ApoFilter.h"
#include "presets/formats/GraphicEq.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brimsound::presets {

namespace {

/// Reads the lines in order; "Channel:", "Device:" and "Stage:" lines limit what the lines after them apply
/// to.
class ApoReader {
public:
    explicit ApoReader(const ReadingOptions& options)
        : _options(options)
    {
    }

    ForeignPreset read(std::string_view text)
    {
        for (const auto line : linesOf(text)) {
            _place = std::to_string(++_line);
            readLine(trimmed(line));
            if (_preset.findings.haveErrors())
                return _preset;
        }
        finish();
        return _preset;
    }

private:
    struct Command {
        std::string_view name;
        void (ApoReader::*read)(std::string_view parameters);
    };

    void readLine(std::string_view line)
    {
        if (line.empty() || line.starts_with('#'))
            return;
        const auto colon = line.find(':');
        const auto name = trimmed(line.substr(0, colon));
        const auto parameters = colon == std::string_view::npos ? "" : trimmed(line.substr(colon + 1));
        if (decidesAtRunTime(name)
            || (colon != std::string_view::npos && parameters.find('`') != std::string_view::npos)) {
            refuse("what applies is only known when Equalizer APO runs: " + inQuotes(line));
            return;
        }
        if (!isInScope(name))
            return;
        if (colon == std::string_view::npos)
            warn("no command, line skipped: " + inQuotes(line));
        else if (startsWithInAnyCase(name, "Filter"))
            readFilter(parameters);
        else if (const auto* command = find(name))
            (this->*command->read)(parameters);
        else
            warn("unknown command " + inQuotes(name) + ", line skipped");
    }

    static bool decidesAtRunTime(std::string_view name)
    {
        constexpr std::array names { "If", "ElseIf", "Else", "EndIf", "Eval" };
        return std::ranges::any_of(names, [&](const char* known) { return areEqualInAnyCase(known, name); });
    }

    static const Command* find(std::string_view name)
    {
        static constexpr std::array<Command, 13> commands { {
            { "Preamp", &ApoReader::readPreamp },
            { "GraphicEQ", &ApoReader::readCurve },
            { "Channel", &ApoReader::readChannel },
            { "Device", &ApoReader::readDevice },
            { "Stage", &ApoReader::readStage },
            { "Include", &ApoReader::skipFile },
            { "Convolution", &ApoReader::skipEffect },
            { "MultiConvolution", &ApoReader::skipEffect },
            { "Copy", &ApoReader::skipEffect },
            { "Delay", &ApoReader::skipEffect },
            { "LoudnessCorrection", &ApoReader::skipEffect },
            { "VSTPlugin", &ApoReader::skipEffect },
            { "Plugin", &ApoReader::skipEffect },
        } };
        const auto found = std::ranges::find_if(
            commands, [&](const Command& command) { return areEqualInAnyCase(command.name, name); });
        return found == commands.end() ? nullptr : &*found;
    }

    bool takesLeft() const { return _options.channel == ReadingOptions::Channel::Left; }

    /// Nothing counts in a section for another device or for recording, until the next section begins.
    bool isInScope(std::string_view command) const
    {
        const bool isDevice = areEqualInAnyCase(command, "Device");
        const bool isStage = areEqualInAnyCase(command, "Stage");
        return isDevice || (_deviceApplies && (isStage || _stageApplies));
    }

    void readFilter(std::string_view parameters)
    {
        auto filter = readApoFilter(parameters);
        switch (filter.use) {
        case ApoFilter::Use::On:
            count(1);
            filter.filter.place = _place;
            for (auto* channel : channels())
                channel->filters.push_back(filter.filter);
            break;
        case ApoFilter::Use::None:
            break;
        case ApoFilter::Use::Skipped:
            warn(filter.reason);
            break;
        case ApoFilter::Use::Refused:
            refuse(filter.reason);
        }
    }

    void readCurve(std::string_view parameters)
    {
        const auto curve = readGraphicEq(parameters, _place, _preset.findings);
        if (!curve)
            return;
        count(curve->size());
        for (auto* channel : channels())
            channel->curves.push_back(*curve);
    }

    void readPreamp(std::string_view parameters)
    {
        const auto preamp = readApoPreamp(parameters);
        if (!preamp)
            warn("preamp without a number, line skipped");
        else if (!std::isfinite(*preamp))
            refuse("the preamp must be a finite number");
        else {
            _leftPreamp += _onLeft ? *preamp : 0;
            _rightPreamp += _onRight ? *preamp : 0;
            if (_preampPlace.empty() && (takesLeft() ? _onLeft : _onRight))
                _preampPlace = _place;
        }
    }

    void readChannel(std::string_view parameters)
    {
        _onLeft = false;
        _onRight = false;
        for (const auto word : wordsOf(parameters, " \t")) {
            const bool isAll = areEqualInAnyCase(word, "all");
            _onLeft = _onLeft || isAll || areEqualInAnyCase(word, "L") || word == "1";
            _onRight = _onRight || isAll || areEqualInAnyCase(word, "R") || word == "2";
        }
        if (_channelPlace.empty())
            _channelPlace = _place;
        if (!_onLeft && !_onRight)
            warn("what follows is neither for the left nor the right channel and is left out");
    }

    void readDevice(std::string_view parameters)
    {
        const auto device = utf8From(parameters);
        _deviceApplies = areEqualInAnyCase(device, "all") || !_options.device || device == *_options.device;
        if (areEqualInAnyCase(device, "all"))
            return;
        if (!_deviceApplies) {
            warn("for the device " + inQuotes(device) + ", left out");
        } else if (_device.empty()) {
            _device = device;
            warn("for the device " + inQuotes(device) + ", imported for all devices");
        } else if (_device != device) {
            refuse("for another device, " + inQuotes(device)
                + ": choose one with brimsound-presets import --device");
        }
    }

    void readStage(std::string_view parameters)
    {
        _stageApplies = false;
        for (const auto word : wordsOf(parameters, " \t"))
            _stageApplies = _stageApplies || !areEqualInAnyCase(word, "capture");
        if (!_stageApplies)
            warn("what follows is for recording and is left out");
    }

    void skipFile(std::string_view parameters)
    {
        warn("the file " + inQuotes(parameters) + " is not included: import it instead");
    }

    void skipEffect(std::string_view parameters)
    {
        warn("left out, it is not a filter: " + inQuotes(parameters));
    }

    void finish()
    {
        _preset.findings.notePreamp(_preampPlace, takesLeft() ? _leftPreamp : _rightPreamp);
        auto& taken = takesLeft() ? _left : _right;
        if (_left != _right || _leftPreamp != _rightPreamp)
            _preset.findings.warn(_channelPlace,
                std::string("the channels differ: the ") + (takesLeft() ? "left" : "right")
                    + " one is taken");
        taken.levelIsKnown = taken.curves.empty();
        if (taken.filters.empty() && taken.curves.empty()) {
            _preset.findings.refuse({}, "there is no filter that is on, and no curve");
            return;
        }
        const auto positions = taken.filters.empty() && taken.curves.size() == 1
            ? positionsOf(taken.curves.front())
            : std::nullopt;
        if (positions)
            _preset.target = *positions;
        else
            _preset.target = std::move(taken);
    }

    std::vector<Response*> channels()
    {
        std::vector<Response*> all;
        if (_onLeft)
            all.push_back(&_left);
        if (_onRight)
            all.push_back(&_right);
        return all;
    }

    void count(std::size_t items)
    {
        _items += items;
        if (_items > mostItems)
            refuse("more than " + std::to_string(mostItems) + " filters or points");
    }

    void warn(std::string text)
    {
        _preset.findings.warn(_place, std::move(text));
        if (_preset.findings.omitted() == mostItems)
            refuse("more than " + std::to_string(mostItems) + " lines cannot be read");
    }
    void refuse(std::string text) { _preset.findings.refuse(_place, std::move(text)); }

    const ReadingOptions& _options;
    ForeignPreset _preset;
    std::size_t _line = 0;
    std::string _place;
    std::size_t _items = 0;

    Response _left;
    Response _right;
    bool _onLeft = true;
    bool _onRight = true;
    bool _deviceApplies = true;
    bool _stageApplies = true;
    std::string _device;
    std::string _channelPlace;
    double _leftPreamp = 0;
    double _rightPreamp = 0;
    std::string _preampPlace;
};

} // namespace

ForeignPresets readEqualizerApo(std::string_view text, const ReadingOptions& options)
{
    return { ApoReader(options).read(text) };
}

} // namespace brimsound::presets
