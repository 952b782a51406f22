#include "platform/desktop/Qt/MainLoop.h"

#include "platform/desktop/bus/SessionBus.h"
#include "toolkit/time/Clock.h"

#include <QEventLoop>

#include <algorithm>
#include <chrono>

namespace brimsound::desktop {

namespace {

constexpr std::chrono::milliseconds frame { 16 };
constexpr std::chrono::milliseconds firstLook { 250 };
constexpr std::chrono::milliseconds longestPause { 8000 };

std::chrono::milliseconds milliseconds(double seconds)
{
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
}

} // namespace

MainLoop::MainLoop(Time time)
    : _time(time)
{
    if (_time == Time::Virtual)
        return;

    _elapsed.start();
    _timer.setSingleShot(true);
    _timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&_timer, &QTimer::timeout, &_timer, [this] { tick(); });
    toolkit::Clock::shared().realTime
        = [this] { return static_cast<double>(_elapsed.nsecsElapsed()) * 1e-9; };
    toolkit::Clock::shared().onChange = [this] { scheduleTick(); };

    _busTimer.setSingleShot(true);
    QObject::connect(&_busTimer, &QTimer::timeout, &_busTimer, [this] { lookForBus(); });
    auto& bus = SessionBus::shared();
    bus.onPending = [this] { QTimer::singleShot(0, &_timer, [] { SessionBus::shared().process(); }); };
    bus.onReconnect = [this] { watchBus(); };
    watchBus();
}

MainLoop::~MainLoop()
{
    if (_time == Time::Virtual)
        return;
    toolkit::Clock::shared().realTime = nullptr;
    toolkit::Clock::shared().onChange = nullptr;
    SessionBus::shared().onPending = nullptr;
    SessionBus::shared().onReconnect = nullptr;
    // No event loop runs any more that would delete them later.
    for (auto& notifier : _busNotifiers)
        delete notifier.release();
}

void MainLoop::wait(double seconds)
{
    SessionBus::shared().drain();
    if (_time == Time::Virtual) {
        toolkit::Clock::shared().advance(seconds);
    } else {
        QEventLoop loop;
        QTimer::singleShot(milliseconds(seconds), &loop, &QEventLoop::quit);
        loop.exec();
    }
    SessionBus::shared().drain();
}

void MainLoop::watchBus()
{
    _busNotifiers.clear();
    for (const int descriptor : SessionBus::shared().descriptors()) {
        if (descriptor < 0) {
            _busTimer.start(firstLook);
            return;
        }
        auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
        _busNotifiers.emplace_back(notifier);
        QObject::connect(
            notifier, &QSocketNotifier::activated, &_timer, [] { SessionBus::shared().process(); });
    }
    _busTimer.stop();
}

void MainLoop::lookForBus()
{
    // When the bus is back, watchBus is called and stops the timer.
    if (!SessionBus::shared().connection())
        _busTimer.start(std::min(2 * _busTimer.intervalAsDuration(), longestPause));
}

void MainLoop::tick()
{
    toolkit::Clock::shared().catchUp();
    scheduleTick();
}

void MainLoop::scheduleTick()
{
    const auto& clock = toolkit::Clock::shared();
    if (clock.isAnimating()) {
        // Events that arrive faster than frames must not delay the next frame again and again.
        if (!_timer.isActive() || _timer.remainingTimeAsDuration() > frame)
            _timer.start(frame);
    } else if (const auto next = clock.untilNextAction()) {
        _timer.start(milliseconds(*next));
    }
}

} // namespace brimsound::desktop
