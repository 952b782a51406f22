#include "platform/desktop/UIKit/Overlay.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

constexpr double fadeTime = 0.2;
/// What an overlay appears with: enough to take touches from the first moment on.
constexpr double firstAlpha = 0.1;

struct OverlayPeer : ViewPeer {
    bool isLeaving = false;

    bool takesTouches() const override { return true; }
    bool ignoresTouches() const override { return isLeaving; }
};

OverlayPeer& peerOf(const Overlay& overlay)
{
    return static_cast<OverlayPeer&>(overlay.peer());
}

} // namespace

Overlay::Overlay(double dimming)
    : UIView(new OverlayPeer)
{
    setBackgroundColor(UIColor::colorWithWhiteAlpha(0, dimming));
}

void Overlay::appearIn(UIView& window, Animated animated)
{
    setFrame(window.bounds());
    window.addSubview(*this);
    if (animated == Animated::Yes)
        fade(firstAlpha, 1);
}

void Overlay::disappear(Animated animated)
{
    peerOf(*this).isLeaving = true;
    if (animated == Animated::Yes)
        fade(alpha(), 0);
    else
        removeFromSuperview();
}

void Overlay::fade(double from, double to)
{
    setAlpha(from);
    const auto step = [overlay = brimsound::retain(this), number = ++_fade, from, to](double elapsed) {
        if (number != overlay->_fade)
            return false;
        const double progress = std::min(1.0, elapsed / fadeTime);
        overlay->setAlpha(from + (to - from) * progress);
        if (progress >= 1 && to <= 0)
            overlay->removeFromSuperview();
        return progress < 1;
    };
    Clock::shared().onEveryFrame(step);
}

} // namespace brimsound::desktop
