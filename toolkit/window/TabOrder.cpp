#include "toolkit/window/TabOrder.h"

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/view/View.h"

#include <algorithm>
#include <optional>

namespace brimsound::toolkit {

namespace {

/// How far to scroll at a time in search of the next stop, in points. Rows and the gaps between them are at
/// least this high.
constexpr double scrollStep = 44;

/// The view as a scroll view; null for other views.
ScrollView* asScrollView(View& view)
{
    auto* scrollView = view.enclosingScrollView();
    return scrollView == &view ? scrollView : nullptr;
}

bool isInteractive(const View& view)
{
    const auto* ancestor = &view;
    while (ancestor && ancestor->isInteractive())
        ancestor = ancestor->parent();
    return ancestor == nullptr;
}

bool isTabStop(const View& view)
{
    // The focus is on the list, not on its rows.
    const auto role = view.role();
    return role != Role::None && role != Role::Row && view.isFocusable() && isInteractive(view);
}

/// The stops in the view. A scroll view counts as one.
void addStops(const View& view, std::vector<View*>& stops)
{
    for (auto* child : view.accessibleChildren()) {
        if (isTabStop(*child) || asScrollView(*child))
            stops.push_back(child);
        else
            addStops(*child, stops);
    }
}

std::vector<View*> stopsIn(const View& view)
{
    std::vector<View*> stops;
    addStops(view, stops);
    return stops;
}

/// The position of the view in the scroll view's own coordinates.
Point placeIn(const View& scrollView, const View& view)
{
    return scrollView.fromWindow(view.toWindow(view.bounds().origin));
}

bool isBefore(Point a, Point b)
{
    return a.y != b.y ? a.y < b.y : a.x < b.x;
}

/// The next stop in the scroll view from this position; null at the end. Scrolls to find it.
View* stopBeyond(ScrollView& scrollView, std::optional<Point> place, Direction direction)
{
    const bool down = direction == Direction::Next;
    const auto isBeyond = [&](const View* stop) {
        const auto at = placeIn(scrollView, *stop);
        return !place || (down ? isBefore(*place, at) : isBefore(at, *place));
    };
    for (;;) {
        auto stops = stopsIn(scrollView);
        if (!down)
            std::ranges::reverse(stops);
        const auto found = std::ranges::find_if(stops, isBeyond);
        if (found != stops.end())
            return *found;
        const double before = scrollView.origin().y;
        scrollView.scrollBy(down ? scrollStep : -scrollStep);
        scrollView.layOutIfNeeded();
        if (scrollView.origin().y == before)
            return nullptr;
    }
}

/// The stop itself. For a scroll view, its first or last stop.
View* enter(View& stop, Direction direction)
{
    if (isTabStop(stop))
        return &stop;
    auto& scrollView = *asScrollView(stop);
    if (direction == Direction::Next)
        scrollView.scrollTo(0);
    else
        scrollView.scrollToEnd();
    scrollView.layOutIfNeeded();
    return stopBeyond(scrollView, std::nullopt, direction);
}

View* firstOnView(const std::vector<View*>& stops, Direction direction)
{
    std::vector<View*> all;
    for (auto* stop : stops) {
        if (isTabStop(*stop))
            all.push_back(stop);
        else
            addStops(*stop, all);
    }
    if (all.empty())
        return nullptr;
    return direction == Direction::Next ? all.front() : all.back();
}

} // namespace

View* tabStopAround(View& view)
{
    auto* ancestor = &view;
    while (ancestor && !isTabStop(*ancestor))
        ancestor = ancestor->parent();
    return ancestor;
}

View* tabStopBeside(View& window, const View* from, Direction direction)
{
    auto stops = stopsIn(window);
    const auto current
        = std::ranges::find_if(stops, [&](const auto* stop) { return from && from->isWithin(*stop); });
    if (current == stops.end())
        return firstOnView(stops, direction);
    if (auto* scrollView = asScrollView(**current); scrollView && scrollView != from) {
        if (auto* stop = stopBeyond(*scrollView, placeIn(*scrollView, *from), direction))
            return stop;
    }
    if (direction == Direction::Previous)
        std::rotate(stops.begin(), current, stops.end());
    else
        std::rotate(stops.begin(), current + 1, stops.end());
    if (direction == Direction::Previous)
        std::ranges::reverse(stops);
    for (auto* stop : stops) {
        if (auto* entered = enter(*stop, direction))
            return entered;
    }
    return nullptr;
}

ScrollView* scrollViewInFront(View& window)
{
    for (auto* stop : stopsIn(window)) {
        if (auto* scrollView = asScrollView(*stop))
            return scrollView;
    }
    return nullptr;
}

} // namespace brimsound::toolkit
