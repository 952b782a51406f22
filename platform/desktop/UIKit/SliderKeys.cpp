#include "platform/desktop/UIKit/Press.h"
#include "platform/desktop/UIKit/SliderPeer.h"

#include <cmath>
#include <optional>

namespace brimsound::desktop {

namespace {

// In decibels.
constexpr double smallStep = 0.1;
constexpr double largeStep = 1;

/// Where the key brings the slider; nothing when the key does not move it.
std::optional<double> target(const SliderPeer& slider, Key key)
{
    // To tenths, which is what a step shows as.
    const auto moved = [&](double distance) {
        return std::round((static_cast<double>(slider.value) + distance) / smallStep) * smallStep;
    };
    switch (key) {
    case Key::Left:
    case Key::Down:
        return moved(-smallStep);
    case Key::Right:
    case Key::Up:
        return moved(smallStep);
    case Key::PageDown:
        return moved(-largeStep);
    case Key::PageUp:
        return moved(largeStep);
    case Key::Home:
        return slider.minimum;
    case Key::End:
        return slider.maximum;
    default:
        return std::nullopt;
    }
}

} // namespace

bool SliderPeer::keyPressed(Key key, KeyStroke stroke)
{
    // There is nothing to press.
    if (key == Key::Return || key == Key::Space)
        return true;
    const auto wanted = target(*this, key);
    if (!wanted)
        return false;
    auto& slider = static_cast<UISlider&>(*view);
    // The touch may have been cancelled since.
    if (!isHeldByKey || !isTracking) {
        if (stroke == KeyStroke::Repeated || !takeThumb(slider))
            return true;
        isHeldByKey = isTracking;
    }
    if (isHeldByKey)
        dragThumb(slider, *wanted);
    return true;
}

void SliderPeer::keysReleased()
{
    if (std::exchange(isHeldByKey, false))
        releaseThumb(static_cast<UISlider&>(*view));
}

} // namespace brimsound::desktop
