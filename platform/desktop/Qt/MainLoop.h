// Time and bus traffic for a running pane.
#pragma once

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

namespace brimsound::desktop {

/// Moves the clock of the view tree and takes in what arrives on the session bus, on Qt's event loop.
class MainLoop {
public:
    /// Real time passes by itself, for a pane in a window. Virtual time passes only while `wait` is called,
    /// as much as it is told, and bus traffic is taken in only then: every run of a script is the same.
    enum class Time { Real, Virtual };

    explicit MainLoop(Time);
    MainLoop(const MainLoop&) = delete;
    MainLoop& operator=(const MainLoop&) = delete;
    ~MainLoop();

    /// Runs for that many seconds; whatever was on its way on the bus has arrived and is handled by then.
    void wait(double seconds);

private:
    void watchBus();
    void tick();
    void scheduleTick();

    const Time _time;
    QElapsedTimer _elapsed;
    QTimer _timer;
    std::unique_ptr<QSocketNotifier> _busNotifier;
};

} // namespace brimsound::desktop
