#include "platform/desktop/Qt/MainLoop.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/bus/SessionBus.h"

#include <QEventLoop>

#include <chrono>

namespace brimsound::desktop {

namespace {

constexpr std::chrono::milliseconds frame { 16 };

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
    Clock::shared().realTime = [this] { return static_cast<double>(_elapsed.nsecsElapsed()) * 1e-9; };
    Clock::shared().onChange = [this] { scheduleTick(); };

    auto& bus = SessionBus::shared();
    bus.onPending = [this] { QTimer::singleShot(0, &_timer, [] { SessionBus::shared().process(); }); };
    bus.onReconnect = [this] { watchBus(); };
    watchBus();
}

MainLoop::~MainLoop()
{
    if (_time == Time::Virtual)
        return;
    Clock::shared().realTime = nullptr;
    Clock::shared().onChange = nullptr;
    SessionBus::shared().onPending = nullptr;
    SessionBus::shared().onReconnect = nullptr;
}

void MainLoop::wait(double seconds)
{
    SessionBus::shared().drain();
    if (_time == Time::Virtual) {
        Clock::shared().advance(seconds);
    } else {
        QEventLoop loop;
        QTimer::singleShot(milliseconds(seconds), &loop, &QEventLoop::quit);
        loop.exec();
    }
    SessionBus::shared().drain();
}

void MainLoop::watchBus()
{
    _busNotifier.reset();
    const int descriptor = SessionBus::shared().fd();
    if (descriptor < 0)
        return;
    _busNotifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(
        _busNotifier.get(), &QSocketNotifier::activated, &_timer, [] { SessionBus::shared().process(); });
}

void MainLoop::tick()
{
    Clock::shared().catchUp();
    scheduleTick();
}

void MainLoop::scheduleTick()
{
    const auto& clock = Clock::shared();
    if (clock.isAnimating()) {
        // Events that come faster than frames must not put the next frame off again and again.
        if (!_timer.isActive() || _timer.remainingTimeAsDuration() > frame)
            _timer.start(frame);
    } else if (const auto next = clock.untilNextAction()) {
        _timer.start(milliseconds(*next));
    }
}

} // namespace brimsound::desktop
