#include "desktop/presets/Options.h"

#include "presets/Exporting.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <getopt.h>
#include <string_view>

namespace brimsound::presets {

namespace {

constexpr auto usage = R"text(Usage: brimsound-presets list [--json]
       brimsound-presets show NAME [--json]
       brimsound-presets import FILE... [OPTION ...]
       brimsound-presets export NAME... [--format FORMAT] [-o FILE [--force]]
       brimsound-presets rename OLD NEW
       brimsound-presets delete NAME...

Brings presets of other equalizers into the settings pane and out of it.

  --root DIR         the folder with the device's files, including saved presets
  --json             print JSON
  --help             show this text
  --version          show the version

Import reads Winamp EQF and Q1, Equalizer APO and AutoEq text, GraphicEQ curves,
EasyEffects and PulseEffects 4 JSON, XMMS and Audacious presets, ten numbers,
and the JSON of this program.

  --format FORMAT    do not recognize the format: eqf, apo, graphiceq,
                     easyeffects, xmms, numbers or json
  --name NAME        the name for the one preset of the one FILE
  --replace          replace a preset of the same name
  --rename           give a preset whose name is taken another one: "Name (2)"
  --strict           do not import a preset that causes a warning
  --dry-run          print the gains and change nothing
  --fit              fit positions of the same ten bands too; they are copied
                     otherwise
  --bands iso        the bands of XMMS and Audacious files are octaves
  --channel left|right
                     which channel to take when they differ; left by default
  --device NAME      which device to take from Equalizer APO text for several

Export writes to standard output.

  --format FORMAT    json, the default, or eqf: any number of presets
                     apo, graphiceq or easyeffects: one preset
  -o, --output FILE  write a file instead
  --force            replace an existing FILE
)text";

struct CommandInfo {
    std::string_view name;
    Command command;
    std::size_t fewestArguments;
    std::size_t mostArguments;
    /// The letters of the options that it takes besides the general ones.
    std::string_view options;
    std::string_view argument;
};

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

constexpr std::array<CommandInfo, 6> commands { {
    { "list", Command::List, 0, 0, "j", "" },
    { "show", Command::Show, 1, 1, "j", "a NAME" },
    { "import", Command::Import, 1, anyNumber, "fnREsdFbcD", "a FILE" },
    { "export", Command::Export, 1, anyNumber, "fo!", "a NAME" },
    { "rename", Command::Rename, 2, 2, "", "OLD and NEW" },
    { "delete", Command::Delete, 1, anyNumber, "", "a NAME" },
} };

constexpr option known[] = {
    { "root", required_argument, nullptr, 'r' },
    { "help", no_argument, nullptr, 'h' },
    { "version", no_argument, nullptr, 'v' },
    { "json", no_argument, nullptr, 'j' },
    { "format", required_argument, nullptr, 'f' },
    { "output", required_argument, nullptr, 'o' },
    { "force", no_argument, nullptr, '!' },
    { "name", required_argument, nullptr, 'n' },
    { "replace", no_argument, nullptr, 'R' },
    { "rename", no_argument, nullptr, 'E' },
    { "strict", no_argument, nullptr, 's' },
    { "dry-run", no_argument, nullptr, 'd' },
    { "fit", no_argument, nullptr, 'F' },
    { "bands", required_argument, nullptr, 'b' },
    { "channel", required_argument, nullptr, 'c' },
    { "device", required_argument, nullptr, 'D' },
    {},
};

std::string inQuotationMarks(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

const CommandInfo& commandNamed(std::string_view name)
{
    const auto found = std::ranges::find(commands, name, &CommandInfo::name);
    if (found == commands.end())
        throw UsageError("unknown command " + inQuotationMarks(name));
    return *found;
}

Format readFormat(std::string_view name)
{
    const auto format = formatNamed(name);
    if (!format)
        throw UsageError("unknown format " + inQuotationMarks(name));
    return *format;
}

ReadingOptions::Channel readChannel(std::string_view name)
{
    if (name != "left" && name != "right")
        throw UsageError("--channel takes left or right, not " + inQuotationMarks(name));
    return name == "left" ? ReadingOptions::Channel::Left : ReadingOptions::Channel::Right;
}

/// Applies an option that only some commands have.
void apply(int letter, const char* value, Options& options)
{
    switch (letter) {
    case 'j':
        options.json = true;
        break;
    case 'f':
        options.format = readFormat(value);
        options.importing.format = options.format;
        break;
    case 'o':
        options.output = value;
        break;
    case '!':
        options.force = true;
        break;
    case 'n':
        options.importing.name = value;
        break;
    case 'R':
    case 'E':
        if (options.collision != Collision::Refuse)
            throw UsageError("--replace and --rename exclude each other");
        options.collision = letter == 'R' ? Collision::Replace : Collision::Rename;
        break;
    case 's':
        options.importing.strict = true;
        break;
    case 'd':
        options.dryRun = true;
        break;
    case 'F':
        options.importing.copying = Copying::Forbidden;
        break;
    case 'b':
        if (std::string_view(value) != "iso")
            throw UsageError("--bands takes iso, not " + inQuotationMarks(value));
        options.importing.reading.bandsAreOctaves = true;
        break;
    case 'c':
        options.importing.reading.channel = readChannel(value);
        break;
    case 'D':
        options.importing.reading.device = value;
        break;
    default:
        break;
    }
}

void check(const CommandInfo& command, std::string_view letters, const Options& options)
{
    for (const char letter : letters) {
        if (command.options.find(letter) != std::string_view::npos)
            continue;
        const auto* name
            = std::ranges::find_if(known, [&](const option& one) { return one.val == letter; })->name;
        throw UsageError("--" + std::string(name) + " is no option of " + std::string(command.name));
    }
    const auto count = options.arguments.size();
    if (count < command.fewestArguments)
        throw UsageError(std::string(command.name) + " needs " + std::string(command.argument));
    if (count > command.mostArguments)
        throw UsageError("unexpected argument " + inQuotationMarks(options.arguments[command.mostArguments]));
    if (options.importing.name && count > 1)
        throw UsageError("--name is for one FILE");
    if (options.force && !options.output)
        throw UsageError("--force is for -o");
    if (options.command != Command::Export)
        return;
    if (!canExport(options.format))
        throw UsageError("this format is only read");
    if (count > 1 && !holdsSeveral(options.format))
        throw UsageError("this format holds one preset; json and eqf hold several");
}

} // namespace

std::optional<Options> readOptions(int argumentCount, char** arguments)
{
    Options options;
    std::string letters;
    // getopt must not print errors: this program prints its own.
    opterr = 0;
    for (int letter = 0; (letter = getopt_long(argumentCount, arguments, ":o:", known, nullptr)) != -1;) {
        switch (letter) {
        case 'r':
            if (*optarg == '\0')
                throw UsageError("--root needs a path");
            options.root = optarg;
            break;
        case 'h':
            std::fputs(usage, stdout);
            return std::nullopt;
        case 'v':
            std::puts("brimsound-presets " BRIMSOUND_VERSION);
            return std::nullopt;
        case ':':
            throw UsageError(std::string(arguments[optind - 1]) + " needs a value");
        case '?':
            throw UsageError("unknown option " + inQuotationMarks(arguments[optind - 1]));
        default:
            apply(letter, optarg, options);
            letters += static_cast<char>(letter);
        }
    }
    if (optind == argumentCount)
        throw UsageError("there is no command; --help lists them");
    const auto& command = commandNamed(arguments[optind]);
    options.command = command.command;
    options.arguments.assign(arguments + optind + 1, arguments + argumentCount);
    check(command, letters, options);
    return options;
}

} // namespace brimsound::presets
