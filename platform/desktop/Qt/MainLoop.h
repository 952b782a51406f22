// Time and bus traffic for a running pane.
#pragma once

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <vector>

namespace brimsound::desktop {

/// Moves the clock of the view tree and takes in what arrives on the session bus, on Qt's event loop. With
/// real time it looks for a bus that was lost until it is back.
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
    /// Disabled at once, as its descriptor may be closed already; deleted once its own signal has returned.
    struct DeleteLater {
        void operator()(QSocketNotifier* notifier) const
        {
            notifier->setEnabled(false);
            notifier->deleteLater();
        }
    };

    void watchBus();
    void lookForBus();
    void tick();
    void scheduleTick();

    const Time _time;
    QElapsedTimer _elapsed;
    QTimer _timer;
    /// Runs while there is no bus; every look makes the next one come later.
    QTimer _busTimer;
    std::vector<std::unique_ptr<QSocketNotifier, DeleteLater>> _busNotifiers;
};

} // namespace brimsound::desktop
