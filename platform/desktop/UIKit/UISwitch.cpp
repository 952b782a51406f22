#include "platform/UIKit/UISwitch.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/SwitchPeer.h"
#include "platform/desktop/UIKit/Theme.h"

#include <algorithm>
#include <cmath>

namespace brimsound {

using desktop::SwitchPeer;

namespace {

constexpr CGSize switchSize { 51, 31 };
constexpr double knobMargin = 2;
constexpr double slideTime = 0.2;
/// Between the switch and the ring around it.
constexpr double focusRingGap = 3;
/// How far a finger must move sideways, in points, to draw the knob along.
constexpr double drawDistance = 10;

SwitchPeer& peerOf(const UISwitch& view)
{
    return static_cast<SwitchPeer&>(view.peer());
}

desktop::Color mix(const desktop::Color& a, const desktop::Color& b, double share)
{
    const auto between = [share](double from, double to) { return from + (to - from) * share; };
    return { between(a.red, b.red), between(a.green, b.green), between(a.blue, b.blue),
        between(a.alpha, b.alpha) };
}

} // namespace

UISwitch::UISwitch()
    : UIControl(new SwitchPeer)
{
    setFrame({ {}, switchSize });
}

bool UISwitch::isOn() const
{
    return peerOf(*this).isOn;
}

void UISwitch::setOn(bool on, Animated animated)
{
    auto& peer = peerOf(*this);
    const bool wasOn = std::exchange(peer.isOn, on);
    if (wasOn != on)
        desktop::accessibleChanged(*this, desktop::AccessibleChange::StateChanged);
    const double end = on ? 1 : 0;
    const auto movement = ++peer.movement;
    if (peer.knob == end)
        return;
    if (animated == Animated::No) {
        peer.knob = end;
        desktop::setNeedsDisplay(*this);
        return;
    }
    const auto slide = [view = brimsound::retain(this), start = peer.knob, end, movement](double elapsed) {
        auto& moved = peerOf(*view);
        if (moved.movement != movement)
            return false;
        const double progress = std::clamp(elapsed / slideTime, 0.0, 1.0);
        moved.knob = start + (end - start) * progress * (2 - progress);
        desktop::setNeedsDisplay(*view);
        return progress < 1;
    };
    desktop::Clock::shared().onEveryFrame(slide);
}

namespace desktop {

void SwitchPeer::beginTracking(CGPoint point, Pointer)
{
    drawnFrom = point.x;
    wasDrawn = false;
}

void SwitchPeer::continueTracking(CGPoint point)
{
    if (std::abs(point.x - drawnFrom) < drawDistance)
        return;
    wasDrawn = true;
    const bool wanted = point.x > drawnFrom;
    drawnFrom = point.x;
    if (wanted != isOn)
        flip();
}

void SwitchPeer::endTracking(CGPoint, bool inside)
{
    if (inside && !wasDrawn)
        flip();
}

void SwitchPeer::flip()
{
    static_cast<UISwitch*>(view)->setOn(!isOn, Animated::Yes);
    send(UIControlEventValueChanged);
}

FocusRing SwitchPeer::focusRing() const
{
    const auto ring = insetBy(boundsOf(*this), -focusRingGap, -focusRingGap);
    return { ring, ring.size.height / 2 };
}

Accessible SwitchPeer::accessible() const
{
    return { .role = AccessibleRole::Switch, .name = rowTextOf(*view), .checked = isOn, .focusable = true };
}

void SwitchPeer::draw(Canvas& canvas) const
{
    const auto bounds = boundsOf(*this);
    canvas.fillRoundedRect(bounds, bounds.size.height / 2, mix(theme::switchOff, theme::switchOn, knob));
    const double size = bounds.size.height - 2 * knobMargin;
    const double way = bounds.size.width - size - 2 * knobMargin;
    const auto rect
        = CGRectMake(bounds.origin.x + knobMargin + way * knob, bounds.origin.y + knobMargin, size, size);
    drawKnob(canvas, rect);
}

} // namespace desktop

} // namespace brimsound
