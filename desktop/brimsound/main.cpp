// The settings pane on the desktop: in a window, or without one when a gesture script is run.
#include "desktop/brimsound/LineSource.h"
#include "desktop/brimsound/MediaServer.h"
#include "desktop/brimsound/Options.h"
#include "desktop/brimsound/OwnBus.h"
#include "desktop/brimsound/PaneHost.h"
#include "desktop/brimsound/PresetImport.h"
#include "desktop/brimsound/ScriptRunner.h"
#include "desktop/brimsound/WindowSize.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Qt/MainLoop.h"
#include "platform/desktop/Qt/PaneWidget.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/UIKit/Screen.h"
#include "platform/desktop/process/StandardStreams.h"

#include <QApplication>
#include <QIcon>
#include <QScreen>
#include <QShortcut>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace {

using namespace brimsound;
using namespace brimsound::desktop;

constexpr toolkit::Size firstSize { 320, 568 };
constexpr QSize smallestSize { 280, 240 };
constexpr double scaleWithoutScreen = 2;

/// The media server's program, which is installed with this one.
std::filesystem::path mediaServerProgram()
{
    const std::filesystem::path folder = QCoreApplication::applicationDirPath().toStdString();
    return (folder / MEDIASERVERD).lexically_normal();
}

/// Makes Qt use the display if there is one and it is wanted, otherwise no display.
void choosePlatform(const Options& options)
{
    if (options.headless)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM",
            qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ? "wayland;xcb;offscreen" : "xcb;offscreen");
    if (options.scale && !options.headless)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*options.scale));
}

/// Runs the app until the user closes the window.
int runWindow(PaneWidget& widget)
{
    for (const auto key : { Qt::Key_Q, Qt::Key_W })
        new QShortcut(Qt::CTRL | key, &widget, &widget, &QWidget::close);
    const int status = QApplication::exec();
    const bool fillsScreen = widget.isMaximized() || widget.isFullScreen();
    storeWindowSize(fillsScreen ? widget.normalGeometry().size() : widget.size());
    return status;
}

void throwIfIncomplete(const Trace& trace)
{
    if (trace.failure() != 0)
        throw std::runtime_error(
            std::string("the trace cannot be written: ") + std::strerror(trace.failure()));
}

/// The exit status.
int runScript(const QString& path, ScriptRunner& runner, const Trace& trace, MainLoop& loop)
{
    LineSource lines(path);
    int number = 1;
    try {
        for (auto line = lines.next(); line; line = lines.next()) {
            runner.run(*line);
            throwIfIncomplete(trace);
            ++number;
        }
    } catch (const ScriptError& error) {
        std::fprintf(stderr, "brimsound: line %d: %s\n", number, error.what());
        return 2;
    }
    // Effects that the last line caused are part of the trace.
    loop.wait(0);
    throwIfIncomplete(trace);
    return 0;
}

int run(int argc, char** argv, const Options& options)
{
    if (!options.root.isEmpty())
        setDeviceRoot(std::filesystem::absolute(options.root.toStdString()));
    prepareDeviceRoot();

    QApplication application(argc, argv);
    QApplication::setApplicationName("brimsound");
    QApplication::setApplicationDisplayName(QString::fromStdString(paneTitle()));
    QApplication::setDesktopFileName("com.quorvix.brimsound");
    const auto icon = resolveDevicePath("/Library/PreferenceBundles/BrimsoundSettings.bundle/icon@3x.png");
    QApplication::setWindowIcon(QIcon(QString::fromStdString(icon.string())));

    const bool headless = QGuiApplication::platformName() == "offscreen";
    if (headless && options.script.isEmpty() && options.snapshot.isEmpty())
        throw UsageError("without a display there is nothing to do but --script or --snapshot");

    const OwnBus bus;
    // A script is a trial of the pane, so it must not change the sound that is playing.
    const auto sound = headless || !options.script.isEmpty() ? MediaServer::Sound::LeftAlone
                                                             : MediaServer::Sound::Equalized;
    const MediaServer server(mediaServerProgram(), deviceRoot(), sound);

    Trace trace(stdout);
    if (!options.script.isEmpty())
        setEffectObserver(&trace);
    if (!options.script.isEmpty() && !options.live)
        setReach(Reach::ObserverOnly);

    MainLoop loop(headless ? MainLoop::Time::Virtual : MainLoop::Time::Real);
    PaneHost host(firstSize);
    std::unique_ptr<PaneWidget> widget;
    if (!headless) {
        widget = std::make_unique<PaneWidget>(host.window());
        widget->setWindowTitle(QGuiApplication::applicationDisplayName());
        widget->setMinimumSize(smallestSize);
        widget->onFilesDropped = [&host](const auto& files) { importPresets(host, files); };
        if (const auto size = storedWindowSize(); size && options.script.isEmpty())
            widget->resize(size->boundedTo(widget->screen()->availableSize()));
        widget->show();
    }
    const double scale = headless ? options.scale.value_or(scaleWithoutScreen) : widget->devicePixelRatioF();
    setScreenScale(scale);
    const auto resize = [&](toolkit::Size size) {
        if (widget)
            widget->resize(QSizeF(size.width, size.height).toSize());
        else
            host.window().setFrame({ {}, size });
    };

    if (!options.files.empty())
        importPresets(host, options.files);

    int status = 0;
    if (!options.script.isEmpty()) {
        ScriptRunner runner(host, loop, trace, scale, resize);
        status = runScript(options.script, runner, trace, loop);
    } else if (!headless) {
        status = runWindow(*widget);
    }
    if (status == 0 && !options.snapshot.isEmpty() && !writeSnapshot(host.window(), scale, options.snapshot))
        throw std::runtime_error("the picture \"" + options.snapshot.toStdString() + "\" cannot be written");
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    openMissingStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    try {
        const auto options = readOptions(arguments);
        choosePlatform(options);
        return run(argc, argv, options);
    } catch (const UsageError& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
        return 1;
    }
}
