#include "toolkit/window/TouchSession.h"

#include "toolkit/scroll/ScrollView.h"

#include <cmath>

namespace brimsound::toolkit {

namespace {

/// How long the touch of a finger in a scroll view is delayed, in seconds.
constexpr double holdBackTime = 0.15;

View* nearestThatTakesTouches(View* view)
{
    while (view && !view->takesTouches())
        view = view->parent();
    return view;
}

} // namespace

bool TouchSession::isActive() const
{
    return _phase == Phase::Held ? _view->window() != nullptr : _phase != Phase::None;
}

void TouchSession::begin(View& hit, const Touch& touch)
{
    // The held view may have left the window.
    _phase = Phase::None;
    _first = _last = touch;
    _view = keep(nearestThatTakesTouches(&hit));
    _scrollView = keep(touch.pointer == Pointer::Finger ? hit.enclosingScrollView() : nullptr);
    if (!_view && !_scrollView)
        return;

    if (!_scrollView) {
        handOver();
        return;
    }
    _phase = Phase::HeldBack;
    // A touch that stops a moving view does nothing else, because the user could not aim at anything in it.
    if (_scrollView->isMoving())
        _view = nullptr;
    _scrollView->stop();
    _delay.wait(holdBackTime, [this] { handOver(); });
}

void TouchSession::hold(View& view)
{
    _view = keep(&view);
    _phase = Phase::Held;
}

void TouchSession::letGo(const View& view)
{
    if (_phase == Phase::Held && _view == &view)
        finish();
}

// A view may end the touch in its callback, so the session keeps a reference to the view during the call.

void TouchSession::move(Point location)
{
    if (_phase == Phase::None || _phase == Phase::Held)
        return;
    _last.location = location;

    if (_phase == Phase::HeldBack) {
        if (movesUpOrDown(location)) {
            startScrolling();
            return;
        }
        if (std::abs(location.x - _first.location.x) <= touchSlop)
            return;
        handOver();
    }
    const auto view = _view;
    if (_phase == Phase::Scrolling) {
        _scrollView->panTo(location.y);
    } else if (_scrollView && movesUpOrDown(location) && (!view || view->yieldsToScrolling())) {
        if (view)
            view->touchCanceled();
        startScrolling();
    } else if (view) {
        view->touchMoved(_last);
    }
}

void TouchSession::end(Point location)
{
    if (_phase == Phase::None || _phase == Phase::Held)
        return;
    _last.location = location;
    if (_phase == Phase::HeldBack)
        handOver();
    const auto view = _view;
    if (_phase == Phase::Scrolling)
        _scrollView->endPan();
    else if (view)
        view->touchEnded(_last);
    finish();
}

void TouchSession::cancel()
{
    const auto view = _view;
    if (_phase == Phase::Scrolling)
        _scrollView->endPan();
    else if ((_phase == Phase::WithView || _phase == Phase::Held) && view)
        view->touchCanceled();
    finish();
}

void TouchSession::handOver()
{
    _delay.cancel();
    _phase = Phase::WithView;
    if (const auto view = _view)
        view->touchBegan(_first);
}

void TouchSession::startScrolling()
{
    _delay.cancel();
    _phase = Phase::Scrolling;
    _scrollView->beginPan(_last.location.y);
}

void TouchSession::finish()
{
    _delay.cancel();
    // The touch may have stopped the view beyond its edge.
    if (_scrollView && _phase != Phase::Scrolling)
        _scrollView->comeBack();
    _phase = Phase::None;
    _view = nullptr;
    _scrollView = nullptr;
}

bool TouchSession::movesUpOrDown(Point location) const
{
    const double dx = std::abs(location.x - _first.location.x);
    const double dy = std::abs(location.y - _first.location.y);
    return dy > touchSlop && dy >= dx;
}

} // namespace brimsound::toolkit
