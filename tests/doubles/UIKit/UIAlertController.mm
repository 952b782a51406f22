#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"
#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/window/Window.h"

#include <Block.h>

#include <iterator>

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

@interface UIAlertAction (Press)
- (void)press;
@end

@interface UIAlertController (Answer)
- (void)answerWithButton:(std::size_t)button;
@end

namespace {

std::vector<std::string> titlesOf(NSArray* actions)
{
    std::vector<std::string> titles;
    for (UIAlertAction* action in actions)
        titles.push_back(doubles::toToolkit([action title]));
    return titles;
}

/// Shows what the controller says. The controller takes it away when it is dismissed.
class ShownAlert : public toolkit::Alert {
public:
    explicit ShownAlert(UIAlertController* controller)
        : Alert(doubles::toToolkit([controller title]), doubles::toToolkit([controller message]),
            titlesOf([controller actions]))
        , _controller(controller)
    {
        onShown = [this] { record(); };
        onAnswer = [controller](std::size_t button) { [controller answerWithButton:button]; };
    }

    UIAlertController* controller() const { return _controller; }

private:
    void record() const
    {
        std::string titles;
        for (const auto& title : buttonTitles())
            titles += (titles.empty() ? "" : ", ") + title;
        doubles::record("alert " + message() + " (" + titles + ")");
    }

    UIAlertController* const _controller;
};

/// The window in which alerts appear; null until there is one.
toolkit::Ref<toolkit::Window>& alertWindow()
{
    // Never destroyed, because the program ends with alerts that are shown.
    static auto& window = *new toolkit::Ref<toolkit::Window>;
    return window;
}

/// Null when there is none.
ShownAlert* current()
{
    return alertWindow() ? static_cast<ShownAlert*>(alertWindow()->alerts().current()) : nullptr;
}

} // namespace

@implementation UIAlertAction

@synthesize title = _title;
@synthesize style = _style;

+ (instancetype)actionWithTitle:(NSString*)title
                          style:(UIAlertActionStyle)style
                        handler:(UIAlertActionHandler)handler
{
    UIAlertAction* const action = [[[self alloc] init] autorelease];
    action->_title = [title copy];
    action->_style = style;
    if (handler)
        action->_handler = Block_copy(handler);
    return action;
}

- (void)dealloc
{
    [_title release];
    if (_handler)
        Block_release(_handler);
    [super dealloc];
}

- (void)press
{
    if (_handler)
        _handler(self);
}

@end

@implementation UIAlertController

@synthesize title = _title;
@synthesize message = _message;
@synthesize preferredStyle = _preferredStyle;
@synthesize actions = _actions;

+ (instancetype)alertControllerWithTitle:(NSString*)title
                                 message:(NSString*)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle
{
    UIAlertController* const controller = [[[self alloc] init] autorelease];
    controller->_title = [title copy];
    controller->_message = [message copy];
    controller->_preferredStyle = preferredStyle;
    controller->_actions = [[NSMutableArray alloc] init];
    return controller;
}

- (void)dealloc
{
    [_title release];
    [_message release];
    [_actions release];
    [super dealloc];
}

- (void)addAction:(UIAlertAction*)action
{
    for (UIAlertAction* other in _actions) {
        if ([other style] == UIAlertActionStyleCancel && [action style] == UIAlertActionStyleCancel)
            [NSException raise:NSInternalInconsistencyException format:@"Only one action may cancel"];
    }
    [_actions addObject:action];
}

- (void)viewDidAppear:(BOOL)animated
{
    [super viewDidAppear:animated];
    if (!alertWindow())
        alertWindow() = toolkit::make<toolkit::Window>(toolkit::Size { 320, 568 });
    alertWindow()->alerts().add(*toolkit::make<ShownAlert>(self));
}

- (void)viewDidDisappear:(BOOL)animated
{
    [super viewDidDisappear:animated];
    if (current() && current()->controller() == self)
        alertWindow()->alerts().dismissCurrent();
}

/// The handler is called when the alert has been dismissed.
- (void)answerWithButton:(std::size_t)button
{
    [[self retain] autorelease];
    UIAlertAction* const action = [_actions objectAtIndex:button];
    [[self presentingViewController] dismissViewControllerAnimated:YES completion:nil];
    [action press];
}

@end

namespace brimsound::doubles {

UIAlertController* currentAlert()
{
    const auto* const alert = current();
    return alert ? alert->controller() : nil;
}

bool pressAlertButton(NSInteger index)
{
    const auto* const alert = current();
    if (!alert || index < 0 || index >= std::ssize(alert->buttons()))
        return false;
    return alert->buttons()[static_cast<std::size_t>(index)]->press();
}

void dismissAlerts()
{
    alertWindow() = nullptr;
}

} // namespace brimsound::doubles
