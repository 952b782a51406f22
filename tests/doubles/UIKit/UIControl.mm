#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/control/Control.h"

#include <algorithm>
#include <vector>

using brimsound::toolkit::ControlEvent;

namespace {

struct Action {
    /// Not retained.
    id target;
    SEL selector;
    UIControlEvents events;
};

UIControlEvents bit(ControlEvent event)
{
    if (event == ControlEvent::ValueChanged)
        return UIControlEventValueChanged;
    // The others are in the platform's order, where a repeated touch follows the first.
    return event == ControlEvent::TouchDown ? UIControlEventTouchDown
                                            : UIControlEventTouchDown << (static_cast<unsigned>(event) + 1);
}

} // namespace

struct UIControlState {
    std::vector<Action> actions;
};

@implementation UIControl

- (instancetype)initWithNative:(brimsound::toolkit::View*)native
{
    self = [super initWithNative:native];
    if (self) {
        _controlState = new UIControlState;
        static_cast<brimsound::toolkit::Control*>(native)->onEvent
            = [self](ControlEvent event) { [self sendActionsForControlEvents:bit(event)]; };
    }
    return self;
}

- (void)dealloc
{
    delete _controlState;
    [super dealloc];
}

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)controlEvents
{
    auto& actions = _controlState->actions;
    const auto known = std::ranges::find_if(actions,
        [&](const Action& other) { return other.target == target && sel_isEqual(other.selector, action); });
    if (known == actions.end())
        actions.push_back({ target, action, controlEvents });
    else
        known->events |= controlEvents;
}

- (void)sendActionsForControlEvents:(UIControlEvents)controlEvents
{
    // An action may release the control, and add targets to it.
    [self retain];
    const auto actions = _controlState->actions;
    for (const auto& action : actions) {
        if (action.events & controlEvents)
            [action.target performSelector:action.selector withObject:self withObject:nil];
    }
    [self release];
}

@end
