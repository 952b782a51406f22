#include "tests/ios/doubles/UIKit/Animation.h"

#include "tests/ios/doubles/UIKit/Block.h"

#include <algorithm>
#include <vector>

namespace brimsound::doubles {

namespace {

/// An animation whose changes are being made.
struct AnimationBlock {
    /// In seconds.
    double duration = 0.2;
    bool beginsFromCurrentState = false;
};

/// The innermost one is the last.
std::vector<AnimationBlock> blocks;

/// The time, in seconds.
double now = 0;

CGFloat between(CGFloat from, CGFloat to, double progress)
{
    return from + (to - from) * progress;
}

CGRect between(const CGRect& from, const CGRect& to, double progress)
{
    return CGRectMake(between(from.origin.x, to.origin.x, progress),
        between(from.origin.y, to.origin.y, progress), between(from.size.width, to.size.width, progress),
        between(from.size.height, to.size.height, progress));
}

Components between(const Components& from, const Components& to, double progress)
{
    Components components {};
    for (std::size_t i = 0; i < components.size(); ++i)
        components[i] = between(from[i], to[i], progress);
    return components;
}

/// The default curve, ease in and ease out: the cubic Bézier curve through (0, 0), (0.42, 0), (0.58, 1) and
/// (1, 1).
double eased(double progress)
{
    const auto bezier = [](double first, double second, double s) {
        return 3 * first * s * (1 - s) * (1 - s) + 3 * second * s * s * (1 - s) + s * s * s;
    };
    // Halving finds the s of an x, as x only ever grows.
    double low = 0;
    double high = 1;
    for (int halving = 0; halving < 30; ++halving) {
        const double middle = (low + high) / 2;
        (bezier(0.42, 0.58, middle) < progress ? low : high) = middle;
    }
    return bezier(0, 1, low);
}

} // namespace

void advanceClock(double seconds)
{
    now += seconds;
}

double currentTime()
{
    return now;
}

void resetAnimations()
{
    blocks.clear();
}

template <typename Value> Value shown(const std::optional<Movement<Value>>& movement, const Value& value)
{
    if (!movement)
        return value;
    const double progress = (now - movement->start) / movement->duration;
    return progress >= 1 ? value : between(movement->from, value, eased(progress));
}

template <typename Value> void willChange(std::optional<Movement<Value>>& movement, const Value& value)
{
    if (blocks.empty() || blocks.back().duration <= 0) {
        movement.reset();
        return;
    }
    const auto& block = blocks.back();
    const auto from = block.beginsFromCurrentState ? shown(movement, value) : value;
    movement = Movement<Value> { from, now, block.duration };
}

template CGRect shown(const std::optional<Movement<CGRect>>&, const CGRect&);
template CGFloat shown(const std::optional<Movement<CGFloat>>&, const CGFloat&);
template Components shown(const std::optional<Movement<Components>>&, const Components&);
template void willChange(std::optional<Movement<CGRect>>&, const CGRect&);
template void willChange(std::optional<Movement<CGFloat>>&, const CGFloat&);
template void willChange(std::optional<Movement<Components>>&, const Components&);

} // namespace brimsound::doubles

using brimsound::doubles::blocks;

@implementation UIView (UIViewAnimation)

+ (void)beginAnimations:(NSString*)animationID context:(void*)context
{
    blocks.emplace_back();
}

+ (void)setAnimationDuration:(NSTimeInterval)duration
{
    if (!blocks.empty())
        blocks.back().duration = duration;
}

+ (void)setAnimationBeginsFromCurrentState:(BOOL)fromCurrentState
{
    if (!blocks.empty())
        blocks.back().beginsFromCurrentState = fromCurrentState;
}

+ (void)commitAnimations
{
    if (!blocks.empty())
        blocks.pop_back();
}

+ (void)animateWithDuration:(NSTimeInterval)duration animations:(id)animations
{
    blocks.push_back({ duration });
    brimsound::doubles::callBlock(animations);
    blocks.pop_back();
}

@end
