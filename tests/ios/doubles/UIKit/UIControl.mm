#import <UIKit/UIKit.h>

#include <algorithm>
#include <vector>

namespace {

struct Action {
    /// Not retained.
    id target;
    SEL selector;
    UIControlEvents events;
};

} // namespace

struct UIControlState {
    std::vector<Action> actions;
};

@implementation UIControl

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self)
        _controlState = new UIControlState;
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
    // An action may let go of the control, and add targets to it.
    [self retain];
    const auto actions = _controlState->actions;
    for (const auto& action : actions) {
        if (action.events & controlEvents)
            [action.target performSelector:action.selector withObject:self withObject:nil];
    }
    [self release];
}

@end
