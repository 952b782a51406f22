#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/time/Clock.h"
#include "toolkit/view/Transition.h"

#include <utility>
#include <vector>

using brimsound::toolkit::Transition;

namespace {

/// How changes showed before each of the animations that were begun; the innermost is the last.
std::vector<Transition::Changes> outer;

} // namespace

@implementation UIView (UIViewAnimation)

+ (void)beginAnimations:(NSString*)animationID context:(void*)context
{
    outer.push_back(std::exchange(Transition::changes(), { .duration = 0.2, .fromValue = true }));
}

+ (void)setAnimationDuration:(NSTimeInterval)duration
{
    if (!outer.empty())
        Transition::changes().duration = duration;
}

+ (void)setAnimationBeginsFromCurrentState:(BOOL)fromCurrentState
{
    if (!outer.empty())
        Transition::changes().fromValue = !fromCurrentState;
}

+ (void)commitAnimations
{
    if (outer.empty())
        return;
    Transition::changes() = outer.back();
    outer.pop_back();
}

@end

namespace brimsound::doubles {

void advanceClock(double seconds)
{
    toolkit::Clock::shared().advance(seconds);
}

void resetAnimations()
{
    outer.clear();
    Transition::changes() = {};
}

CGRect shownFrame(UIView* view)
{
    return doubles::toPlatform(nativeView(view).shownFrame());
}

Components shownBackground(UIView* view)
{
    const auto [red, green, blue, alpha] = nativeView(view).shownBackground();
    return { red, green, blue, alpha };
}

CGFloat shownAlpha(UIView* view)
{
    return nativeView(view).shownAlpha();
}

} // namespace brimsound::doubles
