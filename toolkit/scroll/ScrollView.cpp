#include "toolkit/scroll/ScrollView.h"

#include "toolkit/drawing/Theme.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <algorithm>
#include <cmath>

namespace brimsound::toolkit {

namespace {

/// The fraction of its speed that a flick keeps after one second.
constexpr double momentumKept = 0.135;
/// How fast a view returns from beyond its edge: the fraction of the distance left after one second.
constexpr double pullKept = 1e-5;
/// The fraction of a finger's movement that a view follows just beyond its edge.
constexpr double resistance = 0.55;
/// A movement ends below this speed, in points per second.
constexpr double slowest = 12;
/// How far momentum scrolls beyond an edge, as a fraction of the view's height.
constexpr double overshoot = 1.0 / 8;
constexpr double trailTime = 0.1;
constexpr double indicatorTime = 0.8;
constexpr double indicatorFadeTime = 0.3;
constexpr double indicatorWidth = 3;
constexpr double indicatorMargin = 3;
constexpr double shortestIndicator = 24;

/// How far a view of this height is scrolled beyond its edge by a finger that is `distance` points beyond it.
double resisted(double distance, double height)
{
    return height * (1 - 1 / (distance * resistance / height + 1));
}

/// The inverse of `resisted`.
double unresisted(double distance, double height)
{
    return height / resistance * (1 / (1 - distance / height) - 1);
}

} // namespace

ScrollView::ScrollView(const Rect& frame)
    : View(frame)
{
    setClips(true);
}

double ScrollView::furthest() const
{
    return std::max(0.0, contentHeight() - frame().size.height);
}

double ScrollView::nearestEdge(double offset) const
{
    return std::clamp(offset, 0.0, furthest());
}

void ScrollView::scrollTo(double offset)
{
    stop();
    setOrigin({ 0, nearestEdge(offset) });
}

void ScrollView::scrollBy(double distance)
{
    scrollTo(origin().y + distance);
    showIndicator();
}

void ScrollView::scrollPages(double pages)
{
    scrollBy(pages * frame().size.height);
    if (auto* around = window())
        around->layOutAll();
}

void ScrollView::show(const Rect& part)
{
    if (part.top() < origin().y)
        scrollTo(part.top());
    else if (part.bottom() > bounds().bottom())
        scrollTo(part.bottom() - frame().size.height);
}

void ScrollView::beginPan(double windowY)
{
    stop();
    const double height = frame().size.height;
    const double offset = origin().y;
    _panY = windowY;
    _panOffset = offset;
    if (offset < 0)
        _panOffset = -unresisted(-offset, height);
    else if (offset > furthest())
        _panOffset = furthest() + unresisted(offset - furthest(), height);
    _trail = { { Clock::shared().now(), windowY } };
    showIndicator();
}

void ScrollView::panTo(double windowY)
{
    const double now = Clock::shared().now();
    _trail.push_back({ now, windowY });
    while (_trail.size() > 2 && _trail.front().time < now - trailTime)
        _trail.pop_front();

    const double height = frame().size.height;
    double offset = _panOffset - (windowY - _panY);
    if (offset < 0)
        offset = -resisted(-offset, height);
    else if (offset > furthest())
        offset = furthest() + resisted(offset - furthest(), height);
    setOrigin({ 0, offset });
    showIndicator();
}

void ScrollView::endPan()
{
    const auto start = _trail.front();
    const auto end = _trail.back();
    const bool flicked = end.time > start.time && Clock::shared().now() - end.time < trailTime;
    settle(flicked ? (start.y - end.y) / (end.time - start.time) : 0);
}

void ScrollView::stop()
{
    _momentum.cancel();
}

void ScrollView::comeBack()
{
    if (origin().y != nearestEdge(origin().y))
        settle(0);
}

void ScrollView::settle(double velocity)
{
    _momentum.run([this, velocity](double seconds) mutable {
        const double height = frame().size.height;
        double offset = origin().y;
        const double edge = nearestEdge(offset);
        if (offset != edge) {
            // Beyond an edge it only returns.
            offset = edge + (offset - edge) * std::pow(pullKept, seconds);
            velocity = 0;
            if (std::abs(offset - edge) < 0.5)
                offset = edge;
        } else {
            offset = std::clamp(
                offset + velocity * seconds, -height * overshoot, furthest() + height * overshoot);
            velocity *= std::pow(momentumKept, seconds);
        }
        setOrigin({ 0, offset });
        showIndicator();
        return std::abs(velocity) >= slowest || offset != nearestEdge(offset);
    });
}

void ScrollView::showIndicator()
{
    _indicatorAlpha = 1;
    setNeedsDisplay();
    _indicator.wait(indicatorTime, [this] {
        _indicator.start(indicatorFadeTime, linear, [this](double progress) {
            _indicatorAlpha = 1 - progress;
            setNeedsDisplay();
        });
    });
}

void ScrollView::drawAbove(Canvas& canvas) const
{
    if (_indicatorAlpha <= 0 || furthest() <= 0)
        return;
    const auto size = frame().size;
    const double height = size.height - 2 * indicatorMargin;
    const double length = std::max(shortestIndicator, height * size.height / contentHeight());
    const double way = std::clamp(origin().y / furthest(), 0.0, 1.0) * (height - length);
    const auto place = makeRect(size.width - indicatorWidth - indicatorMargin,
        origin().y + indicatorMargin + way, indicatorWidth, length);
    canvas.fillRoundedRect(inLayoutDirection(place), indicatorWidth / 2,
        theme::scrollIndicator.withAlpha(theme::scrollIndicator.alpha * _indicatorAlpha));
}

void scrollIntoView(View& view)
{
    auto* window = view.window();
    auto* scrollView = view.enclosingScrollView();
    if (!window || !scrollView)
        return;
    window->layOutAll();
    const auto bounds = view.bounds();
    scrollView->show({ scrollView->fromWindow(view.toWindow(bounds.origin)), bounds.size });
    window->layOutAll();
}

} // namespace brimsound::toolkit
