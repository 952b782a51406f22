#include "platform/UIKit/UISlider.h"

#include "platform/desktop/UIKit/ImagePeer.h"
#include "platform/desktop/UIKit/Knob.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/Theme.h"

#include "platform/Foundation/NSString.h"

#include <algorithm>
#include <cmath>

namespace brimsound {

namespace desktop {

namespace {

constexpr double thumbSize = 28;
constexpr double trackHeight = 4;
/// Between the thumb at its end and the ring around the slider.
constexpr double focusRingGap = 3;
/// What assistive technology changes a value by: decibels.
constexpr double accessibleStep = 0.5;

struct ThumbPeer : ImagePeer {
    ThumbPeer() { size = { thumbSize, thumbSize }; }

    void draw(Canvas& canvas, const CGRect& rect) const override { drawKnob(canvas, rect); }
};

// All sliders look alike and share the one thumb.
const RetainPtr<UIImage>& thumbImage()
{
    static const auto image = makeImage(new ThumbPeer);
    return image;
}

/// The sliders in the same superview, the view itself among them.
std::vector<UISlider*> slidersBeside(const UIView& view)
{
    std::vector<UISlider*> sliders;
    if (const auto* superview = view.superview()) {
        for (const auto& sibling : peerOf(*superview).subviews) {
            if (auto* slider = dynamic_cast<UISlider*>(sibling.get()))
                sliders.push_back(slider);
        }
    }
    return sliders;
}

} // namespace

SliderPeer& peerOf(const UISlider& slider)
{
    return static_cast<SliderPeer&>(slider.peer());
}

SliderPeer::SliderPeer()
{
    overhang = knobShadowReach;
}

Color SliderPeer::tint() const
{
    return minimumTrackTint ? colorOf(minimumTrackTint) : theme::tint;
}

CGPoint SliderPeer::thumbCentre(double shownValue) const
{
    const auto bounds = boundsOf(*this);
    const double range = static_cast<double>(maximum) - minimum;
    const double fraction = range > 0 ? (shownValue - minimum) / range : 0;
    const double way = bounds.size.width - thumbSize;
    return { bounds.origin.x + thumbSize / 2 + way * fraction, bounds.origin.y + bounds.size.height / 2 };
}

void SliderPeer::takeValueAt(double x)
{
    const auto bounds = boundsOf(*this);
    const double way = bounds.size.width - thumbSize;
    if (way <= 0)
        return;
    const double fraction = (x - bounds.origin.x - thumbSize / 2) / way;
    const double range = static_cast<double>(maximum) - minimum;
    double wanted = minimum + fraction * range;
    // Rounding would otherwise leave a trace of a value, and of a sign, where the thumb stands at zero.
    if (std::abs(wanted) < range * 1e-12)
        wanted = 0;
    const float before = value;
    static_cast<UISlider*>(view)->setValue(static_cast<float>(wanted));
    if (value != before)
        send(UIControlEventValueChanged);
}

void SliderPeer::beginTracking(CGPoint point, Pointer pointer)
{
    for (auto* slider : slidersBeside(*view))
        peerOf(*slider).heldCaption = captionOf(*slider);
    grip = point.x - thumbCentre(value).x;
    if (pointer == Pointer::Mouse && std::abs(grip) > thumbSize / 2) {
        grip = 0;
        takeValueAt(point.x);
    }
}

void SliderPeer::continueTracking(CGPoint point)
{
    takeValueAt(point.x - grip);
}

FocusRing SliderPeer::focusRing() const
{
    return { insetBy(boundsOf(*this), -focusRingGap, focusRingInset) };
}

Accessible SliderPeer::accessible() const
{
    const auto& slider = static_cast<const UISlider&>(*view);
    const auto sliders = slidersBeside(*view);
    const bool held = std::ranges::any_of(sliders, [](auto* other) { return peerOf(*other).isTracking; });
    // Rounded, and without the sign of a zero, which would read "-0.0".
    const double shown = std::round(static_cast<double>(value) * 10) / 10 + 0.0;
    return { .role = AccessibleRole::Slider,
        .name = !accessibilityLabel.empty() ? accessibilityLabel
            : held                          ? heldCaption
                                            : captionOf(slider),
        // Readers that take the number, not the words, say this after it.
        .description = "dB",
        .value = stringWithFormat("%.1f", shown) + " dB",
        .range = AccessibleRange { shown, minimum, maximum, accessibleStep },
        .focusable = true };
}

void SliderPeer::draw(Canvas& canvas) const
{
    const auto bounds = boundsOf(*this);
    const auto centre = thumbCentre(value);
    const auto track
        = CGRectMake(bounds.origin.x + 2, centre.y - trackHeight / 2, bounds.size.width - 4, trackHeight);
    const double radius = trackHeight / 2;
    canvas.fillRoundedRect(track, radius, theme::sliderTrack);

    auto filled = track;
    filled.size.width = std::max(0.0, centre.x - track.origin.x);
    canvas.fillRoundedRect(filled, radius, tint());
    // A light colour would fade into a white row without an edge.
    canvas.fillRoundedRect(
        CGRectMake(filled.origin.x, filled.origin.y + trackHeight - 0.5, filled.size.width, 0.5), 0,
        { 0, 0, 0, 0.15 });

    const auto& thumb = peerOf(*thumbImage());
    thumb.draw(canvas,
        CGRectMake(centre.x - thumb.size.width / 2, centre.y - thumb.size.height / 2, thumb.size.width,
            thumb.size.height));
}

} // namespace desktop

using desktop::peerOf;
using desktop::SliderPeer;

UISlider::UISlider()
    : UIControl(new SliderPeer)
{
}

float UISlider::value() const
{
    return peerOf(*this).value;
}

void UISlider::setValue(float value)
{
    auto& peer = peerOf(*this);
    if (std::isnan(value))
        return;
    value = std::clamp(value, peer.minimum, peer.maximum);
    const bool moves = value != peer.value;
    // Of two zeros the new one counts.
    peer.value = value;
    if (!moves)
        return;
    desktop::setNeedsDisplay(*this);
    desktop::accessibleChanged(*this, desktop::AccessibleChange::ValueChanged);
}

float UISlider::minimumValue() const
{
    return peerOf(*this).minimum;
}

void UISlider::setMinimumValue(float minimum)
{
    auto& peer = peerOf(*this);
    if (peer.minimum == minimum)
        return;
    peer.minimum = minimum;
    peer.maximum = std::max(peer.maximum, minimum);
    setValue(peer.value);
    desktop::setNeedsDisplay(*this);
}

float UISlider::maximumValue() const
{
    return peerOf(*this).maximum;
}

void UISlider::setMaximumValue(float maximum)
{
    auto& peer = peerOf(*this);
    if (peer.maximum == maximum)
        return;
    peer.maximum = maximum;
    peer.minimum = std::min(peer.minimum, maximum);
    setValue(peer.value);
    desktop::setNeedsDisplay(*this);
}

RetainPtr<UIColor> UISlider::minimumTrackTintColor() const
{
    return peerOf(*this).minimumTrackTint;
}

void UISlider::setMinimumTrackTintColor(RetainPtr<UIColor> color)
{
    auto& peer = peerOf(*this);
    const auto before = peer.tint();
    peer.minimumTrackTint = std::move(color);
    if (peer.tint() != before)
        desktop::setNeedsDisplay(*this);
}

UIImage* UISlider::currentThumbImage() const
{
    return desktop::thumbImage().get();
}

} // namespace brimsound
