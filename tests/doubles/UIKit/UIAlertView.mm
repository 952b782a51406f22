#include "tests/doubles/Doubles.h"
#include "tests/doubles/Trace.h"
#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/window/Window.h"

#include <cstdarg>
#include <iterator>
#include <utility>

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

namespace {

std::vector<std::string> textsOf(NSArray* strings)
{
    std::vector<std::string> texts;
    for (NSString* string in strings)
        texts.push_back(doubles::toToolkit(string));
    return texts;
}

/// Shows what the UIAlertView says, and retains it until a button is pressed.
class ShownAlert : public toolkit::Alert {
public:
    ShownAlert(UIAlertView* view, NSArray* titles)
        : Alert(doubles::toToolkit([view title]), doubles::toToolkit([view message]), textsOf(titles))
        , _view([view retain])
    {
        onShown = [this] { record(); };
        onAnswer = [this](std::size_t button) { answer(static_cast<NSInteger>(button)); };
    }

    UIAlertView* view() const { return _view; }

protected:
    ~ShownAlert() override { [_view release]; }

private:
    void record() const
    {
        std::string titles;
        for (const auto& title : buttonTitles())
            titles += (titles.empty() ? "" : ", ") + title;
        doubles::record("alert " + message() + " (" + titles + ")");
    }

    void answer(NSInteger button)
    {
        UIAlertView* const view = std::exchange(_view, nil);
        id delegate = [view delegate];
        if ([delegate respondsToSelector:@selector(alertView:clickedButtonAtIndex:)])
            [delegate alertView:view clickedButtonAtIndex:button];
        [view release];
    }

    UIAlertView* _view;
};

/// The platform shows alerts in a window of their own. Null until there is one.
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

@implementation UIAlertView

@synthesize title = _title;
@synthesize message = _message;
@synthesize delegate = _delegate;

- (instancetype)initWithTitle:(NSString*)title
                      message:(NSString*)message
                     delegate:(id)delegate
            cancelButtonTitle:(NSString*)cancelButtonTitle
            otherButtonTitles:(NSString*)otherButtonTitles, ...
{
    self = [super init];
    if (!self)
        return nil;
    _title = [title copy];
    _message = [message copy];
    _delegate = delegate;
    _buttonTitles = [[NSMutableArray alloc] init];
    if (cancelButtonTitle)
        [self addButtonWithTitle:cancelButtonTitle];
    va_list others;
    va_start(others, otherButtonTitles);
    for (NSString* other = otherButtonTitles; other; other = va_arg(others, NSString*))
        [self addButtonWithTitle:other];
    va_end(others);
    return self;
}

- (void)dealloc
{
    [_title release];
    [_message release];
    [_buttonTitles release];
    [super dealloc];
}

- (NSInteger)addButtonWithTitle:(NSString*)title
{
    [_buttonTitles addObject:title];
    return static_cast<NSInteger>([_buttonTitles count]) - 1;
}

- (NSString*)buttonTitleAtIndex:(NSInteger)buttonIndex
{
    return [_buttonTitles objectAtIndex:static_cast<NSUInteger>(buttonIndex)];
}

- (BOOL)isVisible
{
    return doubles::currentAlert() == self;
}

- (void)show
{
    if (!alertWindow())
        alertWindow() = toolkit::make<toolkit::Window>(toolkit::Size { 320, 568 });
    alertWindow()->alerts().add(*toolkit::make<ShownAlert>(self, _buttonTitles));
}

@end

namespace brimsound::doubles {

UIAlertView* currentAlert()
{
    const auto* const alert = current();
    return alert ? alert->view() : nil;
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
