#include "tests/ios/doubles/Trace.h"
#include "tests/ios/doubles/UIKit/AlertQueue.h"
#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/HostedView.h"

#include <cstdarg>
#include <deque>
#include <string>
#include <utility>

using brimsound::doubles::assignCopied;

struct UIAlertViewState {
    NSString* title = nil;
    NSString* message = nil;
    /// Not retained.
    id delegate = nil;
    NSMutableArray* buttonTitles = [[NSMutableArray alloc] init];
};

namespace {

/// Retained; the first one is shown, the others wait.
std::deque<UIAlertView*> alerts;

/// Records that the first one is shown.
void recordAlert()
{
    UIAlertView* const alert = alerts.front();
    std::string buttons;
    for (NSInteger i = 0; i < [alert numberOfButtons]; ++i)
        buttons += (i == 0 ? "" : ", ") + std::string([[alert buttonTitleAtIndex:i] UTF8String]);
    brimsound::doubles::record("alert " + std::string([[alert message] UTF8String]) + " (" + buttons + ")");
}

} // namespace

@implementation UIAlertView

- (instancetype)initWithTitle:(NSString*)title
                      message:(NSString*)message
                     delegate:(id)delegate
            cancelButtonTitle:(NSString*)cancelButtonTitle
            otherButtonTitles:(NSString*)otherButtonTitles, ...
{
    self = [super initWithFrame:CGRect {}];
    if (!self)
        return nil;
    _alertViewState = new UIAlertViewState;
    [self setTitle:title];
    [self setMessage:message];
    [self setDelegate:delegate];
    if (cancelButtonTitle)
        [self addButtonWithTitle:cancelButtonTitle];
    va_list others;
    va_start(others, otherButtonTitles);
    for (NSString* other = otherButtonTitles; other; other = va_arg(others, NSString*))
        [self addButtonWithTitle:other];
    va_end(others);
    return self;
}

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithTitle:nil message:nil delegate:nil cancelButtonTitle:nil otherButtonTitles:nil];
}

- (void)dealloc
{
    [_alertViewState->title release];
    [_alertViewState->message release];
    [_alertViewState->buttonTitles release];
    delete _alertViewState;
    [super dealloc];
}

- (NSString*)title
{
    return _alertViewState->title;
}

- (void)setTitle:(NSString*)title
{
    assignCopied(_alertViewState->title, title);
}

- (NSString*)message
{
    return _alertViewState->message;
}

- (void)setMessage:(NSString*)message
{
    assignCopied(_alertViewState->message, message);
}

- (id)delegate
{
    return _alertViewState->delegate;
}

- (void)setDelegate:(id)delegate
{
    _alertViewState->delegate = delegate;
}

- (NSInteger)numberOfButtons
{
    return static_cast<NSInteger>([_alertViewState->buttonTitles count]);
}

- (NSInteger)addButtonWithTitle:(NSString*)title
{
    [_alertViewState->buttonTitles addObject:title];
    return [self numberOfButtons] - 1;
}

- (NSString*)buttonTitleAtIndex:(NSInteger)buttonIndex
{
    return [_alertViewState->buttonTitles objectAtIndex:static_cast<NSUInteger>(buttonIndex)];
}

- (BOOL)isVisible
{
    return !alerts.empty() && alerts.front() == self;
}

- (void)show
{
    alerts.push_back([self retain]);
    if (alerts.size() == 1)
        recordAlert();
}

- (void)dismissWithClickedButtonIndex:(NSInteger)buttonIndex animated:(BOOL)animated
{
    const bool wasShown = [self isVisible];
    if (!std::erase(alerts, self))
        return;
    if (wasShown && !alerts.empty())
        recordAlert();
    [self release];
}

@end

namespace brimsound::doubles {

UIAlertView* currentAlert()
{
    return alerts.empty() ? nil : alerts.front();
}

bool pressAlertButton(NSInteger index)
{
    UIAlertView* const alert = currentAlert();
    if (!alert || index < 0 || index >= [alert numberOfButtons])
        return false;
    [alert retain];
    id delegate = [alert delegate];
    if ([delegate respondsToSelector:@selector(alertView:clickedButtonAtIndex:)])
        [delegate alertView:alert clickedButtonAtIndex:index];
    [alert dismissWithClickedButtonIndex:index animated:YES];
    [alert release];
    return true;
}

void dismissAlerts()
{
    for (UIAlertView* alert : std::exchange(alerts, {}))
        [alert release];
}

} // namespace brimsound::doubles
