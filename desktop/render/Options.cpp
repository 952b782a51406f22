#include "desktop/render/Options.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <string_view>

namespace brimsound::render {

namespace {

constexpr auto usage = R"(Usage: brimsound-render IN OUT (--preset NAME | --gains "G1 ... G10") [OPTION ...]
       brimsound-render --list-presets [--root DIR]

Writes the sound file IN to OUT as the equalizer would play it. OUT has the
format, rate, channels and length of IN.

  --preset NAME    use the gains of a preset, built in or saved in the pane
  --gains LIST     ten gains in dB from -12 to 12: 60, 170, 310, 600 Hz,
                   1, 3, 6, 12, 14, 16 kHz
  --preamp auto    minus the highest gain; the default with --preset
  --preamp DB      from -12 to 12; the default with --gains is 0
  --no-limiter     let samples exceed full scale, or clip in a format that
                   does not support this
  --root DIR       the folder with the device's files, including saved presets
  --list-presets   show the names of the presets
  --help           show this text
  --version        show the version
)";

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

double readGain(std::string_view text)
{
    auto digits = text;
    if (digits.starts_with('+') && !digits.starts_with("+-"))
        digits.remove_prefix(1);
    double gain = 0;
    const auto* end = digits.data() + digits.size();
    const auto [stopped, error] = std::from_chars(digits.data(), end, gain);
    // The condition is negated so that NaN is rejected.
    if (error != std::errc() || stopped != end
        || !(-audio::sliderLimit <= gain && gain <= audio::sliderLimit))
        throw UsageError(quoted(text) + " is no gain in dB from -12 to 12");
    return gain;
}

audio::BandGains readGains(std::string_view text)
{
    constexpr auto separators = " \t\n,";
    audio::BandGains gains {};
    std::size_t count = 0;
    for (auto start = text.find_first_not_of(separators); start != std::string_view::npos;
         start = text.find_first_not_of(separators, start)) {
        const auto end = std::min(text.find_first_of(separators, start), text.size());
        const double gain = readGain(text.substr(start, end - start));
        if (count < gains.size())
            gains[count] = gain;
        ++count;
        start = end;
    }
    if (count != gains.size())
        throw UsageError("--gains takes ten gains, not " + std::to_string(count));
    return gains;
}

void takeFiles(Options& options, int count, char** files)
{
    if (count < 2)
        throw UsageError(count == 0 ? "there is no IN and no OUT" : "there is no OUT");
    if (count > 2)
        throw UsageError("unexpected argument " + quoted(files[2]));
    options.in = files[0];
    options.out = files[1];
}

} // namespace

std::optional<Options> readOptions(int argumentCount, char** arguments)
{
    static constexpr option known[] = {
        { "gains", required_argument, nullptr, 'g' },
        { "help", no_argument, nullptr, 'h' },
        { "list-presets", no_argument, nullptr, 'n' },
        { "no-limiter", no_argument, nullptr, 'l' },
        { "preamp", required_argument, nullptr, 'a' },
        { "preset", required_argument, nullptr, 'p' },
        { "root", required_argument, nullptr, 'r' },
        { "version", no_argument, nullptr, 'v' },
        {},
    };
    Options options;
    std::optional<std::string> preamp;
    // getopt must not print errors: this program prints its own.
    opterr = 0;
    for (int letter = 0; (letter = getopt_long(argumentCount, arguments, ":", known, nullptr)) != -1;) {
        switch (letter) {
        case 'g':
            options.gains = readGains(optarg);
            break;
        case 'p':
            options.preset = optarg;
            break;
        case 'a':
            preamp = optarg;
            break;
        case 'n':
            options.listPresets = true;
            break;
        case 'l':
            options.limiter = false;
            break;
        case 'r':
            options.root = optarg;
            break;
        case 'h':
            std::fputs(usage, stdout);
            return std::nullopt;
        case 'v':
            std::puts("brimsound-render " BRIMSOUND_VERSION);
            return std::nullopt;
        case ':':
            throw UsageError(std::string(arguments[optind - 1]) + " needs a value");
        default:
            throw UsageError("unknown option " + quoted(arguments[optind - 1]));
        }
    }
    if (options.listPresets)
        return options;
    takeFiles(options, argumentCount - optind, arguments + optind);
    if (options.preset && options.gains)
        throw UsageError("--preset and --gains exclude each other");
    if (!options.preset && !options.gains)
        throw UsageError("either --preset or --gains is needed");
    if (preamp && preamp != "auto")
        options.preamp = readGain(*preamp);
    else if (!preamp && options.gains)
        options.preamp = 0;
    return options;
}

} // namespace brimsound::render
