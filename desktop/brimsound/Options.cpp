#include "desktop/brimsound/Options.h"

#include <QCommandLineParser>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace brimsound::desktop {

namespace {

constexpr double largestScale = 8;

[[noreturn]] void printAndExit(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::exit(EXIT_SUCCESS);
}

double readScale(const QString& text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    if (!isNumber || !(scale > 0) || scale > largestScale)
        throw UsageError("--scale takes a number above 0 and up to 8, not \"" + text.toStdString() + "\"");
    return scale;
}

} // namespace

Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription("The settings pane of the Brimsound equalizer.");
    const auto help = parser.addHelpOption();
    const auto version = parser.addVersionOption();
    const QCommandLineOption root(
        "root", "Keep the settings in DIR instead of the user's data directory.", "DIR");
    const QCommandLineOption headless("headless", "Open no window. Time only passes when a script waits.");
    const QCommandLineOption script(
        "script", "Run the gesture script in FILE (- for standard input) and print a trace.", "FILE");
    const QCommandLineOption live(
        "live", "Execute the commands, URLs and mails of a script; without it they are only traced.");
    const QCommandLineOption snapshot("snapshot", "Write a picture of the pane at the end.", "FILE.png");
    const QCommandLineOption scale("scale", "Draw N device pixels per point.", "N");
    parser.addOptions({ root, headless, script, live, snapshot, scale });
    parser.addPositionalArgument("FILE", "Import presets of this or another equalizer.", "[FILE ...]");

    if (!parser.parse(arguments))
        throw UsageError(parser.errorText().toStdString());
    if (parser.isSet(help))
        printAndExit(parser.helpText());
    if (parser.isSet(version))
        printAndExit("brimsound " BRIMSOUND_VERSION "\n");
    for (const auto* option : { &root, &script, &snapshot }) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty())
            throw UsageError("--" + option->names().front().toStdString() + " needs a path");
    }

    Options options;
    options.root = parser.value(root);
    options.headless = parser.isSet(headless);
    options.script = parser.value(script);
    options.live = parser.isSet(live);
    options.snapshot = parser.value(snapshot);
    if (parser.isSet(scale))
        options.scale = readScale(parser.value(scale));
    for (const auto& file : parser.positionalArguments())
        options.files.emplace_back(QFile::encodeName(file).toStdString());
    return options;
}

} // namespace brimsound::desktop
