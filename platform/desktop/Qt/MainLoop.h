#pragma once

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <vector>

namespace brimsound::desktop {

/// Advances the clock of the views and processes messages of the session bus, in Qt's event loop. In real
/// time it also reconnects to a bus that was lost.
class MainLoop {
public:
    /// Real time is for a pane in a window. Virtual time only advances in `wait`, by the given time, and bus
    /// messages are processed only then, so that every run of a script has the same result.
    enum class Time { Real, Virtual };

    explicit MainLoop(Time);
    MainLoop(const MainLoop&) = delete;
    MainLoop& operator=(const MainLoop&) = delete;
    ~MainLoop();

    /// Runs for this many seconds. All bus messages that were sent before are processed.
    void wait(double seconds);

private:
    /// Disables the notifier immediately, because its descriptor may already be closed. Deletes it after its
    /// own signal has returned.
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
    /// Active without a bus. The interval increases with each attempt.
    QTimer _busTimer;
    std::vector<std::unique_ptr<QSocketNotifier, DeleteLater>> _busNotifiers;
};

} // namespace brimsound::desktop
