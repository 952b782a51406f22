#include "platform/desktop/UIKit/Animation.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <algorithm>
#include <utility>

namespace brimsound {

namespace {

/// The duration, in seconds, of the animation whose changes are being made; 0 outside of any.
double currentDuration = 0;

} // namespace

void UIView::animateWithDurationAnimations(double seconds, const std::function<void()>& animations)
{
    const double outer = std::exchange(currentDuration, std::max(0.0, seconds));
    animations();
    currentDuration = outer;
}

namespace desktop {

namespace {

double between(double from, double to, double progress)
{
    return from + (to - from) * progress;
}

CGRect between(const CGRect& from, const CGRect& to, double progress)
{
    return CGRectMake(between(from.origin.x, to.origin.x, progress),
        between(from.origin.y, to.origin.y, progress), between(from.size.width, to.size.width, progress),
        between(from.size.height, to.size.height, progress));
}

Color between(const Color& from, const Color& to, double progress)
{
    return { between(from.red, to.red, progress), between(from.green, to.green, progress),
        between(from.blue, to.blue, progress), between(from.alpha, to.alpha, progress) };
}

/// Moves to where the property is now, and ends the movement when it has arrived.
template <typename Value> void step(std::optional<Movement<Value>>& movement, const Value& target)
{
    if (!movement)
        return;
    const double progress = (Clock::shared().now() - movement->start) / movement->duration;
    if (progress >= 1)
        movement.reset();
    else
        movement->shown = between(movement->from, target, eased(std::max(0.0, progress)));
}

bool isMoving(const Animation& animation)
{
    return animation.frame || animation.alpha || animation.background;
}

/// False when nothing moves any more.
bool step(UIView& view)
{
    auto& peer = peerOf(view);
    setNeedsDisplay(view);
    step(peer.animation->frame, peer.frame);
    step(peer.animation->alpha, peer.alpha);
    step(peer.animation->background, colorOf(peer.backgroundColor));
    setNeedsDisplay(view);
    if (isMoving(*peer.animation))
        return true;
    peer.animation = nullptr;
    return false;
}

} // namespace

template <typename Value>
void startFrom(ViewPeer& peer, const Value& shown, std::optional<Movement<Value>> Animation::*property)
{
    if (currentDuration <= 0) {
        if (peer.animation)
            ((*peer.animation).*property).reset();
        return;
    }
    if (!peer.animation) {
        peer.animation = std::make_shared<Animation>();
        // The view may be gone before its movement ends.
        Clock::shared().onEveryFrame([view = peer.view, animation = std::weak_ptr<Animation>(peer.animation)](
                                         double) { return !animation.expired() && step(*view); });
    }
    (*peer.animation).*property = Movement<Value> { shown, shown, Clock::shared().now(), currentDuration };
}

template void startFrom(ViewPeer&, const CGRect&, std::optional<Movement<CGRect>> Animation::*);
template void startFrom(ViewPeer&, const double&, std::optional<Movement<double>> Animation::*);
template void startFrom(ViewPeer&, const Color&, std::optional<Movement<Color>> Animation::*);

double eased(double progress)
{
    // The curve gives x(s) and y(s); s is found by halving, as x only ever grows.
    const auto bezier = [](double first, double second, double s) {
        return 3 * first * s * (1 - s) * (1 - s) + 3 * second * s * s * (1 - s) + s * s * s;
    };
    double low = 0;
    double high = 1;
    for (int halving = 0; halving < 30; ++halving) {
        const double middle = (low + high) / 2;
        (bezier(0.42, 0.58, middle) < progress ? low : high) = middle;
    }
    return bezier(0, 1, high);
}

} // namespace desktop

} // namespace brimsound
