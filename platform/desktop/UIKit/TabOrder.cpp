#include "platform/desktop/UIKit/TabOrder.h"

#include "platform/desktop/UIKit/ScrollPeer.h"

#include <algorithm>
#include <optional>

namespace brimsound::desktop {

namespace {

/// How far rows are brought on view at a time, in points: no row and no gap between rows is so low that one
/// could pass by unseen.
constexpr double scrollStep = 44;

bool scrolls(const UIView& view)
{
    return dynamic_cast<const ScrollPeer*>(&view.peer()) != nullptr;
}

bool isInteractive(const UIView& view)
{
    const auto* ancestor = &view;
    while (ancestor && ancestor->isUserInteractionEnabled())
        ancestor = ancestor->superview();
    return ancestor == nullptr;
}

bool isTabStop(const UIView& view)
{
    const auto accessible = peerOf(view).accessible();
    // The list has the keyboard for its rows.
    return accessible.focusable && accessible.role != AccessibleRole::Row && isInteractive(view);
}

/// The stops in the view, and what scrolls as a whole.
void addStops(const UIView& view, std::vector<UIView*>& stops)
{
    for (auto* child : accessibleChildren(view)) {
        if (isTabStop(*child) || scrolls(*child))
            stops.push_back(child);
        else
            addStops(*child, stops);
    }
}

std::vector<UIView*> stopsIn(const UIView& view)
{
    std::vector<UIView*> stops;
    addStops(view, stops);
    return stops;
}

/// Where the view is within what scrolls, wherever that is scrolled to.
CGPoint placeIn(const UIView& scrollView, const UIView& view)
{
    return convertFromWindow(convertToWindow(view.bounds().origin, view), scrollView);
}

bool isBefore(CGPoint a, CGPoint b)
{
    return a.y != b.y ? a.y < b.y : a.x < b.x;
}

/// The stop in what scrolls that is next from the place on; null when there is none.
UIView* stopBeyond(UIView& scrollView, std::optional<CGPoint> place, Direction direction)
{
    const bool down = direction == Direction::Next;
    auto& peer = scrollPeerOf(scrollView);
    const auto isBeyond = [&](const UIView* stop) {
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
        const double before = peer.origin.y;
        peer.scrollBy(down ? scrollStep : -scrollStep);
        layOutTree(scrollView);
        if (peer.origin.y == before)
            return nullptr;
    }
}

/// The stop itself or, in what scrolls, the one at the end that the keyboard comes in at.
UIView* enter(UIView& stop, Direction direction)
{
    if (isTabStop(stop))
        return &stop;
    auto& peer = scrollPeerOf(stop);
    if (direction == Direction::Next)
        peer.scrollTo(0);
    else
        peer.scrollTo(peer.contentHeight());
    layOutTree(stop);
    return stopBeyond(stop, std::nullopt, direction);
}

UIView* firstOnView(const std::vector<UIView*>& stops, Direction direction)
{
    std::vector<UIView*> all;
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

UIView* tabStopAround(UIView& view)
{
    auto* ancestor = &view;
    while (ancestor && !isTabStop(*ancestor))
        ancestor = ancestor->superview();
    return ancestor;
}

UIView* tabStopBeside(UIView& window, const UIView* from, Direction direction)
{
    auto stops = stopsIn(window);
    const auto current
        = std::ranges::find_if(stops, [&](const auto* stop) { return from && isWithin(from, *stop); });
    if (current == stops.end())
        return firstOnView(stops, direction);
    if (scrolls(**current) && *current != from) {
        if (auto* stop = stopBeyond(**current, placeIn(**current, *from), direction))
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

UIView* scrollViewInFront(UIView& window)
{
    const auto stops = stopsIn(window);
    const auto found = std::ranges::find_if(stops, [](const auto* stop) { return scrolls(*stop); });
    return found == stops.end() ? nullptr : *found;
}

} // namespace brimsound::desktop
