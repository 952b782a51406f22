#include "platform/desktop/UIKit/ScrollPeer.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/Theme.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

namespace {

/// The share of its speed that a flick keeps after a second.
constexpr double momentumKept = 0.135;
/// How quickly a view that was pulled beyond its edge comes back: the share of the way left after a second.
constexpr double pullKept = 1e-5;
/// The share of a finger's way that a view follows beyond its edge at first.
constexpr double resistance = 0.55;
/// Points a second below which a movement ends.
constexpr double slowest = 12;
constexpr double trailTime = 0.1;
constexpr double indicatorTime = 0.8;
constexpr double indicatorFadeTime = 0.3;

/// How far a view follows a finger that is `distance` points beyond the edge of a view of that height.
double resisted(double distance, double height)
{
    return height * (1 - 1 / (distance * resistance / height + 1));
}

/// How far beyond the edge the finger is that pulled a view of that height to `distance` points beyond it.
double unresisted(double distance, double height)
{
    return height / resistance * (1 / (1 - distance / height) - 1);
}

} // namespace

ScrollPeer::ScrollPeer()
{
    clipsToBounds = true;
}

double ScrollPeer::furthest() const
{
    return std::max(0.0, contentHeight() - frame.size.height);
}

void ScrollPeer::scrollTo(double offset)
{
    stop();
    setOrigin(*view, { 0, std::clamp(offset, 0.0, furthest()) });
}

void ScrollPeer::scrollBy(double distance)
{
    scrollTo(origin.y + distance);
    showIndicator();
}

void ScrollPeer::scrollIntoView(const CGRect& part)
{
    const double bottom = part.origin.y + part.size.height;
    if (part.origin.y < origin.y)
        scrollTo(part.origin.y);
    else if (bottom > origin.y + frame.size.height)
        scrollTo(bottom - frame.size.height);
}

void ScrollPeer::beginPan(double windowY)
{
    stop();
    _panY = windowY;
    _panOffset = origin.y;
    if (origin.y < 0)
        _panOffset = -unresisted(-origin.y, frame.size.height);
    else if (origin.y > furthest())
        _panOffset = furthest() + unresisted(origin.y - furthest(), frame.size.height);
    _trail = { { Clock::shared().now(), windowY } };
    showIndicator();
}

void ScrollPeer::panTo(double windowY)
{
    const double now = Clock::shared().now();
    _trail.emplace_back(now, windowY);
    while (_trail.size() > 2 && _trail.front().first < now - trailTime)
        _trail.pop_front();

    double offset = _panOffset - (windowY - _panY);
    if (offset < 0)
        offset = -resisted(-offset, frame.size.height);
    else if (offset > furthest())
        offset = furthest() + resisted(offset - furthest(), frame.size.height);
    setOrigin(*view, { 0, offset });
    showIndicator();
}

void ScrollPeer::endPan()
{
    const double now = Clock::shared().now();
    const auto [startTime, startY] = _trail.front();
    const auto [endTime, endY] = _trail.back();
    const bool flicked = endTime > startTime && now - endTime < trailTime;
    settle(flicked ? (startY - endY) / (endTime - startTime) : 0);
}

void ScrollPeer::stop()
{
    ++_movement;
    _isMoving = false;
}

void ScrollPeer::comeBack()
{
    if (origin.y < 0 || origin.y > furthest())
        settle(0);
}

void ScrollPeer::settle(double velocity)
{
    stop();
    auto move = [this, kept = brimsound::retain(view), movement = _movement, velocity, before = 0.0](
                    double elapsed) mutable {
        if (movement != _movement)
            return false;
        const double seconds = elapsed - std::exchange(before, elapsed);
        double offset = origin.y;
        const double edge = std::clamp(offset, 0.0, furthest());
        if (offset != edge) {
            // Beyond an edge only the way back counts.
            offset = edge + (offset - edge) * std::pow(pullKept, seconds);
            velocity = 0;
            if (std::abs(offset - edge) < 0.5)
                offset = edge;
        } else {
            offset = std::clamp(
                offset + velocity * seconds, -frame.size.height / 8, furthest() + frame.size.height / 8);
            velocity *= std::pow(momentumKept, seconds);
        }
        setOrigin(*view, { 0, offset });
        showIndicator();
        _isMoving = std::abs(velocity) >= slowest || offset != std::clamp(offset, 0.0, furthest());
        return _isMoving;
    };
    _isMoving = true;
    Clock::shared().onEveryFrame(move);
}

void ScrollPeer::showIndicator()
{
    _indicatorAlpha = 1;
    setNeedsDisplay(*view);
    const auto showing = ++_indicatorShowing;
    Clock::shared().after(indicatorTime, [this, kept = brimsound::retain(view), showing] {
        Clock::shared().onEveryFrame([this, kept, showing](double elapsed) {
            if (showing != _indicatorShowing)
                return false;
            _indicatorAlpha = std::max(0.0, 1 - elapsed / indicatorFadeTime);
            setNeedsDisplay(*view);
            return _indicatorAlpha > 0;
        });
    });
}

void ScrollPeer::drawAbove(Canvas& canvas) const
{
    if (_indicatorAlpha <= 0 || furthest() <= 0)
        return;
    constexpr double width = 3;
    constexpr double margin = 3;
    const double height = frame.size.height - 2 * margin;
    const double length = std::max(24.0, height * frame.size.height / contentHeight());
    const double way = std::clamp(origin.y / furthest(), 0.0, 1.0) * (height - length);
    auto color = theme::scrollIndicator;
    color.alpha *= _indicatorAlpha;
    canvas.fillRoundedRect(
        CGRectMake(frame.size.width - width - margin, origin.y + margin + way, width, length), width / 2,
        color);
}

ScrollPeer& scrollPeerOf(const UIView& view)
{
    return static_cast<ScrollPeer&>(view.peer());
}

UIView* enclosingScrollView(UIView& view)
{
    for (auto* ancestor = &view; ancestor; ancestor = ancestor->superview()) {
        if (dynamic_cast<ScrollPeer*>(&ancestor->peer()))
            return ancestor;
    }
    return nullptr;
}

void scrollIntoView(UIView& view)
{
    auto* window = windowOf(view);
    auto* scrollView = enclosingScrollView(view);
    if (!window || !scrollView)
        return;
    window->layOut();
    const auto bounds = view.bounds();
    scrollPeerOf(*scrollView)
        .scrollIntoView(
            { convertFromWindow(convertToWindow(bounds.origin, view), *scrollView), bounds.size });
    window->layOut();
}

} // namespace brimsound::desktop
