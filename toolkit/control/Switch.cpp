#include "toolkit/control/Switch.h"

#include "toolkit/drawing/Knob.h"
#include "toolkit/drawing/Theme.h"

#include <cmath>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr Size switchSize { 51, 31 };
constexpr double knobMargin = 2;
constexpr double slideTime = 0.2;
/// The distance between the switch and the focus ring, in points.
constexpr double focusRingGap = 3;
/// How far a finger must move horizontally, in points, to drag the knob.
constexpr double dragDistance = 10;

} // namespace

Switch::Switch()
    : Control({ {}, switchSize })
{
}

void Switch::setOn(bool on, bool animated)
{
    if (std::exchange(_on, on) != on)
        accessibleChanged(AccessibleChange::StateChanged);
    const double end = on ? 1 : 0;
    _slide.cancel();
    if (_knob == end)
        return;
    if (!animated) {
        _knob = end;
        setNeedsDisplay();
        return;
    }
    _slide.start(slideTime, easeOut, [this, start = _knob, end](double progress) {
        _knob = start + (end - start) * progress;
        setNeedsDisplay();
    });
}

void Switch::trackingBegan(Point point, Pointer)
{
    _dragStart = point.x;
    _wasDragged = false;
}

void Switch::trackingMoved(Point point)
{
    if (std::abs(point.x - _dragStart) < dragDistance)
        return;
    _wasDragged = true;
    const bool wanted = (point.x > _dragStart) != isRightToLeft();
    _dragStart = point.x;
    if (wanted != _on)
        flip();
}

void Switch::pressed()
{
    if (!std::exchange(_wasDragged, false))
        flip();
}

void Switch::flip()
{
    setOn(!_on, true);
    send(ControlEvent::ValueChanged);
}

double Switch::overhang() const
{
    return knobShadowReach;
}

FocusRing Switch::focusRing() const
{
    const auto ring = inset(bounds(), -focusRingGap, -focusRingGap);
    return { ring, ring.size.height / 2 };
}

Accessible Switch::accessible() const
{
    auto self = Control::accessible();
    self.checked = _on;
    return self;
}

void Switch::draw(Canvas& canvas) const
{
    const auto area = bounds();
    canvas.fillRoundedRect(area, area.size.height / 2, between(theme::switchOff, theme::switchOn, _knob));
    const double size = area.size.height - 2 * knobMargin;
    const double way = area.size.width - size - 2 * knobMargin;
    const auto knob = makeRect(knobMargin + way * _knob, knobMargin, size, size);
    drawKnob(canvas, inLayoutDirection(knob));
}

} // namespace brimsound::toolkit
