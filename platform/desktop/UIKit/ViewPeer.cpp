#include "platform/desktop/UIKit/ViewPeer.h"

#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

namespace {

// Views fainter than this cannot be touched.
constexpr double faintest = 0.01;

CGPoint toSuperview(CGPoint point, const ViewPeer& peer)
{
    return { point.x - peer.origin.x + peer.frame.origin.x, point.y - peer.origin.y + peer.frame.origin.y };
}

/// The same for what is drawn.
CGRect shownInSuperview(const CGRect& rect, const ViewPeer& peer)
{
    const auto place = peer.shownFrame().origin;
    return { { rect.origin.x - peer.origin.x + place.x, rect.origin.y - peer.origin.y + place.y },
        rect.size };
}

CGRect shownBoundsOf(const ViewPeer& peer)
{
    return { peer.origin, peer.shownFrame().size };
}

CGPoint fromSuperview(CGPoint point, const ViewPeer& peer)
{
    return { point.x - peer.frame.origin.x + peer.origin.x, point.y - peer.frame.origin.y + peer.origin.y };
}

/// Whether the rectangle comes into one of the squares that hold the rounded corners of the one around it.
bool reachesCorner(const CGRect& rect, const CGRect& around, double radius)
{
    const double left = rect.origin.x - around.origin.x;
    const double top = rect.origin.y - around.origin.y;
    const double right = around.size.width - left - rect.size.width;
    const double bottom = around.size.height - top - rect.size.height;
    return std::min(left, right) < radius && std::min(top, bottom) < radius;
}

void drawContents(const ViewPeer& peer, Canvas& canvas)
{
    if (const auto color = peer.shownBackground(); color.alpha > 0)
        canvas.fillPixels(shownBoundsOf(peer), color);
    peer.draw(canvas);
    for (const auto& subview : peer.subviews)
        drawTree(*subview, canvas);
    peer.drawAbove(canvas);
    if (peer.showsFocus)
        drawFocusRing(peer.focusRing(), canvas);
}

} // namespace

ViewPeer::~ViewPeer()
{
    if (onDestroyed)
        onDestroyed();
}

CGRect ViewPeer::shownFrame() const
{
    return animation && animation->frame ? animation->frame->shown : frame;
}

double ViewPeer::shownAlpha() const
{
    return animation && animation->alpha ? animation->alpha->shown : alpha;
}

Color ViewPeer::shownBackground() const
{
    return animation && animation->background ? animation->background->shown : colorOf(backgroundColor);
}

FocusRing ViewPeer::focusRing() const
{
    // Scrolling must not change its shape.
    const auto part = partWithin(*view, enclosingScrollView(*view));
    return { insetBy(part, focusRingInset, focusRingInset), focusRingRadius(*view) };
}

void ViewPeer::scrollToFocus()
{
    scrollIntoView(*view);
}

double focusRingRadius(const UIView& view)
{
    auto radius = FocusRing().radius;
    const auto part = partWithin(view, nullptr);
    for (const auto* ancestor = view.superview(); ancestor; ancestor = ancestor->superview()) {
        const auto& peer = peerOf(*ancestor);
        const auto place = convertFromWindow(convertToWindow(part.origin, view), *ancestor);
        if (peer.clipsToBounds && reachesCorner({ place, part.size }, boundsOf(peer), peer.cornerRadius))
            radius = std::max(radius, peer.cornerRadius - focusRingInset);
    }
    return radius;
}

ViewPeer& peerOf(const UIView& view)
{
    return static_cast<ViewPeer&>(view.peer());
}

CGRect boundsOf(const ViewPeer& peer)
{
    return { peer.origin, peer.frame.size };
}

bool canBeTouched(const ViewPeer& peer)
{
    return !peer.hidden && peer.alpha >= faintest && peer.userInteractionEnabled && !peer.ignoresTouches();
}

bool coversSuperview(const UIView& view)
{
    const auto area = view.superview()->bounds();
    return canBeTouched(peerOf(view)) && area.size.width > 0 && area.size.height > 0
        && contains(view.frame(), area);
}

CGRect partWithin(const UIView& view, const UIView* outermost)
{
    auto part = view.bounds();
    // Where the view's own coordinates start in those of the view around it.
    CGPoint start;
    const auto* ancestor = &view;
    while (const auto* superview = ancestor == outermost ? nullptr : ancestor->superview()) {
        start = toSuperview(start, peerOf(*ancestor));
        const auto bounds = superview->bounds();
        part = intersection(part, { { bounds.origin.x - start.x, bounds.origin.y - start.y }, bounds.size });
        ancestor = superview;
    }
    return part;
}

bool isWithin(const UIView* view, const UIView& ancestor)
{
    while (view && view != &ancestor)
        view = view->superview();
    return view != nullptr;
}

CGRect reachOf(const ViewPeer& peer)
{
    if (peer.clipsToBounds)
        return shownBoundsOf(peer);
    auto reach = insetBy(shownBoundsOf(peer), -peer.overhang, -peer.overhang);
    for (const auto& subview : peer.subviews) {
        const auto& inner = peerOf(*subview);
        if (!inner.hidden)
            reach = unite(reach, shownInSuperview(reachOf(inner), inner));
    }
    return reach;
}

void setNeedsDisplay(const UIView& view)
{
    setNeedsDisplay(view, reachOf(peerOf(view)));
}

void setNeedsDisplay(const UIView& view, const CGRect& rect)
{
    const auto* window = windowOf(view);
    if (!window)
        return;
    auto part = rect;
    for (const auto* ancestor = &view; ancestor != window; ancestor = ancestor->superview()) {
        if (ancestor->isHidden())
            return;
        part = shownInSuperview(part, peerOf(*ancestor));
    }
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
        if (peer.controller)
            peer.controller->viewDidLayoutSubviews();
    }
    // A layout may add or remove views.
    const auto subviews = peer.subviews;
    for (const auto& subview : subviews)
        layOutTree(*subview);
}

void drawTree(const UIView& view, Canvas& canvas)
{
    const auto& peer = peerOf(view);
    const auto frame = peer.shownFrame();
    const double alpha = peer.shownAlpha();
    if (peer.hidden || alpha <= 0 || !isFinite(frame))
        return;
    const auto reach = reachOf(peer);
    if (!canvas.showsAnythingIn(shownInSuperview(reach, peer)))
        return;

    canvas.save();
    canvas.translate(frame.origin.x - peer.origin.x, frame.origin.y - peer.origin.y);
    const bool rounded = peer.clipsToBounds && peer.cornerRadius > 0;
    const bool grouped = rounded || alpha < 1;
    if (grouped)
        canvas.beginGroup(reach, alpha, rounded ? peer.cornerRadius : 0);
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
    if (!canBeTouched(peer) || !contains(boundsOf(peer), point))
        return nullptr;
    // NOLINTNEXTLINE(modernize-loop-convert): from the front backwards
    for (auto front = peer.subviews.rbegin(); front != peer.subviews.rend(); ++front) {
        if (auto* hit = hitTest(**front, fromSuperview(point, peerOf(**front))))
            return hit;
    }
    return &view;
}

bool isFinite(const CGRect& rect)
{
    return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) && std::isfinite(rect.size.width)
        && std::isfinite(rect.size.height);
}

bool contains(const CGRect& rect, CGPoint point)
{
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width && point.y >= rect.origin.y
        && point.y < rect.origin.y + rect.size.height;
}

bool contains(const CGRect& outer, const CGRect& inner)
{
    return inner.origin.x >= outer.origin.x && inner.origin.y >= outer.origin.y
        && inner.origin.x + inner.size.width <= outer.origin.x + outer.size.width
        && inner.origin.y + inner.size.height <= outer.origin.y + outer.size.height;
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

CGRect intersection(const CGRect& a, const CGRect& b)
{
    const double left = std::max(a.origin.x, b.origin.x);
    const double top = std::max(a.origin.y, b.origin.y);
    const double right = std::min(a.origin.x + a.size.width, b.origin.x + b.size.width);
    const double bottom = std::min(a.origin.y + a.size.height, b.origin.y + b.size.height);
    return CGRectMake(left, top, std::max(0.0, right - left), std::max(0.0, bottom - top));
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
