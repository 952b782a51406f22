#include "platform/desktop/UIKit/TouchSession.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ScrollPeer.h"

#include <cmath>

namespace brimsound::desktop {

namespace {

/// How long a finger within a scroll view is held back, in seconds.
constexpr double holdBackTime = 0.15;

UIView* nearestThatTakesTouches(UIView* view)
{
    while (view && !peerOf(*view).takesTouches())
        view = view->superview();
    return view;
}

} // namespace

TouchSession::~TouchSession()
{
    Clock::shared().cancel(_timer);
}

void TouchSession::begin(UIView& hit, const Touch& touch)
{
    _first = _last = touch;
    _view = retain(nearestThatTakesTouches(&hit));
    _scrollView = retain(touch.pointer == Pointer::Finger ? enclosingScrollView(hit) : nullptr);
    if (!_view && !_scrollView)
        return;

    if (!_scrollView) {
        handOver();
        return;
    }
    _phase = Phase::HeldBack;
    // A touch that stops a moving view means nothing else: nobody can have aimed at what was passing by.
    if (scrollPeerOf(*_scrollView).isMoving())
        _view = nullptr;
    scrollPeerOf(*_scrollView).stop();
    _timer = Clock::shared().after(holdBackTime, [this] { handOver(); });
}

// A view may end the touch from within what it is told, so it is kept for as long as it is being told.

void TouchSession::move(CGPoint location)
{
    if (_phase == Phase::None)
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
        scrollPeerOf(*_scrollView).panTo(location.y);
    } else if (_scrollView && movesUpOrDown(location) && (!view || peerOf(*view).yieldsToScrolling())) {
        if (view)
            peerOf(*view).touchCancelled();
        startScrolling();
    } else if (view) {
        peerOf(*view).touchMoved(_last);
    }
}

void TouchSession::end(CGPoint location)
{
    if (_phase == Phase::None)
        return;
    _last.location = location;
    if (_phase == Phase::HeldBack)
        handOver();
    const auto view = _view;
    if (_phase == Phase::Scrolling)
        scrollPeerOf(*_scrollView).endPan();
    else if (view)
        peerOf(*view).touchEnded(_last);
    finish();
}

void TouchSession::cancel()
{
    const auto view = _view;
    if (_phase == Phase::Scrolling)
        scrollPeerOf(*_scrollView).endPan();
    else if (_phase == Phase::WithView && view)
        peerOf(*view).touchCancelled();
    finish();
}

void TouchSession::handOver()
{
    Clock::shared().cancel(_timer);
    _phase = Phase::WithView;
    if (const auto view = _view)
        peerOf(*view).touchBegan(_first);
}

void TouchSession::startScrolling()
{
    Clock::shared().cancel(_timer);
    _phase = Phase::Scrolling;
    scrollPeerOf(*_scrollView).beginPan(_last.location.y);
}

void TouchSession::finish()
{
    Clock::shared().cancel(_timer);
    // The touch may have stopped the view on its way back to its edge.
    if (_scrollView && _phase != Phase::Scrolling)
        scrollPeerOf(*_scrollView).comeBack();
    _phase = Phase::None;
    _view = nullptr;
    _scrollView = nullptr;
}

bool TouchSession::movesUpOrDown(CGPoint location) const
{
    const double dx = std::abs(location.x - _first.location.x);
    const double dy = std::abs(location.y - _first.location.y);
    return dy > touchSlop && dy >= dx;
}

} // namespace brimsound::desktop
