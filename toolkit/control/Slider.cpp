#include "toolkit/control/Slider.h"

#include "toolkit/drawing/Knob.h"
#include "toolkit/drawing/Theme.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double thumbSize = 28;
constexpr double trackHeight = 4;
/// The distance between the thumb at its end and the focus ring, in points.
constexpr double focusRingGap = 3;

class Thumb : public Image {
public:
    Thumb()
        : Image({ thumbSize, thumbSize })
    {
    }

    void draw(Canvas& canvas, const Rect& rect) const override { drawKnob(canvas, rect); }
};

/// The nearest multiple of the step. Computed from the number of steps in 1, because 10 has an exact binary
/// representation and 0.1 has not.
double inSteps(double value, double step)
{
    const double inOne = 1 / step;
    return std::round(value * inOne) / inOne;
}

} // namespace

Image& Slider::thumb()
{
    static const auto image = make<Thumb>();
    return *image;
}

void Slider::setValue(float value)
{
    if (std::isnan(value))
        return;
    value = std::clamp(value, _minimum, _maximum);
    const bool moves = value != _value;
    // This also changes the sign of a zero.
    _value = value;
    if (!moves)
        return;
    setNeedsDisplay();
    accessibleChanged(AccessibleChange::ValueChanged);
}

void Slider::set(double value, Side side)
{
    const auto kept = keep(this);
    if (!isHeld())
        return;
    change(value);
    sendDrag(side);
}

bool Slider::slideTo(double value)
{
    return holdFor([&] { set(value); });
}

bool Slider::stepBy(int steps)
{
    return slideTo(moved(steps * _steps.small));
}

void Slider::setMinimum(float minimum)
{
    if (_minimum == minimum)
        return;
    _minimum = minimum;
    _maximum = std::max(_maximum, minimum);
    setValue(_value);
    setNeedsDisplay();
}

void Slider::setMaximum(float maximum)
{
    if (_maximum == maximum)
        return;
    _maximum = maximum;
    _minimum = std::min(_minimum, maximum);
    setValue(_value);
    setNeedsDisplay();
}

void Slider::setTint(std::optional<Color> tint)
{
    if (std::exchange(_tint, tint) != tint)
        setNeedsDisplay();
}

void Slider::setSteps(Steps steps)
{
    _steps = std::move(steps);
}

Point Slider::thumbCenter(double value) const
{
    const auto area = bounds();
    const double range = static_cast<double>(_maximum) - _minimum;
    const double fraction = range > 0 ? (value - _minimum) / range : 0;
    return { area.left() + thumbSize / 2 + (area.size.width - thumbSize) * fraction, area.middle().y };
}

void Slider::takeValueAt(double x)
{
    const auto area = bounds();
    const double way = area.size.width - thumbSize;
    if (way <= 0)
        return;
    const double range = static_cast<double>(_maximum) - _minimum;
    const double wanted = _minimum + (x - area.left() - thumbSize / 2) / way * range;
    // Rounding errors could otherwise give the middle a tiny value or a sign instead of zero.
    change(std::abs(wanted) < range * 1e-12 ? 0 : wanted);
}

void Slider::change(double value)
{
    const float before = _value;
    setValue(static_cast<float>(value));
    if (_value != before)
        send(ControlEvent::ValueChanged);
}

void Slider::touchBegan(const Touch& touch)
{
    const auto kept = keep(this);
    const bool thumbClicked = _thumbTouched;
    Control::touchBegan(touch);
    // The first click of a double click may have brought the thumb to the mouse.
    if (touch.isDoubleClick && thumbClicked && _thumbTouched && _steps.neutral) {
        _grip = std::nullopt;
        set(*_steps.neutral);
    }
}

void Slider::trackingBegan(Point point, Pointer pointer)
{
    const double distance = point.x - thumbCenter(_value).x;
    _grip = distance;
    _thumbTouched = std::abs(distance) <= thumbSize / 2;
    if (pointer == Pointer::Mouse && !_thumbTouched) {
        _grip = 0;
        takeValueAt(point.x);
    }
}

void Slider::trackingMoved(Point point)
{
    if (_grip)
        takeValueAt(point.x - *_grip);
}

/// The value at this distance, as a multiple of the small step, which is the precision of its text.
double Slider::moved(double distance) const
{
    return inSteps(static_cast<double>(_value) + distance, _steps.small);
}

/// The value after this key; nothing for keys that do not change it.
std::optional<double> Slider::target(Key key) const
{
    switch (key) {
    case Key::Left:
    case Key::Down:
        return moved(-_steps.small);
    case Key::Right:
    case Key::Up:
        return moved(_steps.small);
    case Key::PageDown:
        return moved(-_steps.large);
    case Key::PageUp:
        return moved(_steps.large);
    case Key::Home:
        return _minimum;
    case Key::End:
        return _maximum;
    case Key::Zero:
        return _steps.neutral;
    default:
        return std::nullopt;
    }
}

bool Slider::keyPressed(Key key, KeyStroke stroke)
{
    // A slider cannot be pressed.
    if (key == Key::Return || key == Key::Space)
        return true;
    const auto wanted = target(key);
    if (!wanted)
        return false;
    // The control may have been canceled since.
    if (!_heldByKey || !isHeld()) {
        if (stroke == KeyStroke::Repeated || !begin())
            return true;
        _heldByKey = isHeld();
    }
    set(*wanted);
    return true;
}

void Slider::keysReleased()
{
    if (std::exchange(_heldByKey, false))
        commit();
}

double Slider::overhang() const
{
    return knobShadowReach;
}

FocusRing Slider::focusRing() const
{
    return { inset(bounds(), -focusRingGap, focusRingInset) };
}

Accessible Slider::accessible() const
{
    auto self = Control::accessible();
    // Rounded as in its text, and without the sign of a zero, which would be read.
    const double shown = inSteps(static_cast<double>(_value), _steps.small) + 0.0;
    self.description = _steps.unit;
    self.value = _steps.words ? _steps.words(shown) : std::string();
    self.range = ValueRange { shown, _minimum, _maximum, _steps.small };
    return self;
}

void Slider::draw(Canvas& canvas) const
{
    const auto area = bounds();
    const auto center = thumbCenter(_value);
    const auto track
        = makeRect(area.left() + 2, center.y - trackHeight / 2, area.size.width - 4, trackHeight);
    const double radius = trackHeight / 2;
    canvas.fillRoundedRect(track, radius, theme::sliderTrack);

    auto filled = track;
    filled.size.width = std::max(0.0, center.x - track.left());
    canvas.fillRoundedRect(filled, radius, _tint.value_or(theme::tint));
    // Without an edge, a light color would be hard to see on a white row.
    canvas.fillRoundedRect(makeRect(filled.left(), filled.top() + trackHeight - 0.5, filled.size.width, 0.5),
        0, { 0, 0, 0, 0.15 });
    drawKnob(canvas, makeRect(center.x - thumbSize / 2, center.y - thumbSize / 2, thumbSize, thumbSize));
}

} // namespace brimsound::toolkit
