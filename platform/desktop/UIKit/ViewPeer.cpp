#include "platform/desktop/UIKit/ViewPeer.h"

#include "platform/desktop/UIKit/Window.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

// Views fainter than this cannot be touched.
constexpr double faintest = 0.01;

CGPoint toSuperview(CGPoint point, const ViewPeer& peer)
{
    return { point.x - peer.origin.x + peer.frame.origin.x, point.y - peer.origin.y + peer.frame.origin.y };
}

CGPoint fromSuperview(CGPoint point, const ViewPeer& peer)
{
    return { point.x - peer.frame.origin.x + peer.origin.x, point.y - peer.frame.origin.y + peer.origin.y };
}

void drawContents(const ViewPeer& peer, Canvas& canvas)
{
    const auto bounds = boundsOf(peer);
    if (const auto color = colorOf(peer.backgroundColor); color.alpha > 0)
        canvas.fillRect(bounds, color);
    peer.draw(canvas);
    for (const auto& subview : peer.subviews)
        drawTree(*subview, canvas);
    peer.drawAbove(canvas);
}

} // namespace

ViewPeer::~ViewPeer()
{
    if (onDestroyed)
        onDestroyed();
}

ViewPeer& peerOf(const UIView& view)
{
    return static_cast<ViewPeer&>(view.peer());
}

CGRect boundsOf(const ViewPeer& peer)
{
    return { peer.origin, peer.frame.size };
}

CGRect reachOf(const ViewPeer& peer)
{
    if (peer.clipsToBounds)
        return boundsOf(peer);
    auto reach = insetBy(boundsOf(peer), -peer.overhang, -peer.overhang);
    for (const auto& subview : peer.subviews) {
        const auto& inner = peerOf(*subview);
        const auto innerReach = reachOf(inner);
        if (!inner.hidden)
            reach = unite(reach, { toSuperview(innerReach.origin, inner), innerReach.size });
    }
    return reach;
}

void setNeedsDisplay(const UIView& view)
{
    setNeedsDisplay(view, reachOf(peerOf(view)));
}

void setNeedsDisplay(const UIView& view, const CGRect& rect)
{
    auto part = rect;
    const auto* ancestor = &view;
    while (const auto* superview = ancestor->superview()) {
        if (ancestor->isHidden())
            return;
        part.origin = toSuperview(part.origin, peerOf(*ancestor));
        ancestor = superview;
    }
    if (auto* window = dynamic_cast<const Window*>(ancestor))
        window->invalidate(part);
}

void setOrigin(UIView& view, CGPoint origin)
{
    auto& peer = peerOf(view);
    if (peer.origin == origin)
        return;
    peer.origin = origin;
    peer.needsLayout = true;
    setNeedsDisplay(view);
}

CGPoint convertFromWindow(CGPoint point, const UIView& view)
{
    const auto* superview = view.superview();
    return superview ? fromSuperview(convertFromWindow(point, *superview), peerOf(view)) : point;
}

CGPoint convertToWindow(CGPoint point, const UIView& view)
{
    const auto* superview = view.superview();
    return superview ? convertToWindow(toSuperview(point, peerOf(view)), *superview) : point;
}

void layOutTree(UIView& view)
{
    auto& peer = peerOf(view);
    if (peer.needsLayout) {
        peer.needsLayout = false;
        peer.willLayOut();
        view.layoutSubviews();
    }
    // A layout may add or remove views.
    const auto subviews = peer.subviews;
    for (const auto& subview : subviews)
        layOutTree(*subview);
}

void drawTree(const UIView& view, Canvas& canvas)
{
    const auto& peer = peerOf(view);
    if (peer.hidden || peer.alpha <= 0)
        return;
    const auto reach = reachOf(peer);
    if (!canvas.showsAnythingIn({ toSuperview(reach.origin, peer), reach.size }))
        return;

    canvas.save();
    canvas.translate(peer.frame.origin.x - peer.origin.x, peer.frame.origin.y - peer.origin.y);
    const bool rounded = peer.clipsToBounds && peer.cornerRadius > 0;
    const bool grouped = rounded || peer.alpha < 1;
    if (grouped)
        canvas.beginGroup(reach, peer.alpha, rounded ? peer.cornerRadius : 0);
    else if (peer.clipsToBounds)
        canvas.clip(reach);
    drawContents(peer, canvas);
    if (grouped)
        canvas.endGroup();
    canvas.restore();
}

UIView* hitTest(UIView& view, CGPoint point)
{
    const auto& peer = peerOf(view);
    if (peer.hidden || peer.alpha < faintest || peer.ignoresTouches() || !contains(boundsOf(peer), point))
        return nullptr;
    // NOLINTNEXTLINE(modernize-loop-convert): from the front backwards
    for (auto front = peer.subviews.rbegin(); front != peer.subviews.rend(); ++front) {
        if (auto* hit = hitTest(**front, fromSuperview(point, peerOf(**front))))
            return hit;
    }
    return &view;
}

bool contains(const CGRect& rect, CGPoint point)
{
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width && point.y >= rect.origin.y
        && point.y < rect.origin.y + rect.size.height;
}

bool intersects(const CGRect& a, const CGRect& b)
{
    return a.origin.x < b.origin.x + b.size.width && b.origin.x < a.origin.x + a.size.width
        && a.origin.y < b.origin.y + b.size.height && b.origin.y < a.origin.y + a.size.height;
}

CGRect insetBy(const CGRect& rect, double dx, double dy)
{
    return CGRectMake(
        rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx, rect.size.height - 2 * dy);
}

CGRect unite(const CGRect& a, const CGRect& b)
{
    if (a.size.width <= 0 || a.size.height <= 0)
        return b;
    if (b.size.width <= 0 || b.size.height <= 0)
        return a;
    const double left = std::min(a.origin.x, b.origin.x);
    const double top = std::min(a.origin.y, b.origin.y);
    const double right = std::max(a.origin.x + a.size.width, b.origin.x + b.size.width);
    const double bottom = std::max(a.origin.y + a.size.height, b.origin.y + b.size.height);
    return CGRectMake(left, top, right - left, bottom - top);
}

} // namespace brimsound::desktop
