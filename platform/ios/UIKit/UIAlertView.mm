#include "platform/UIKit/UIAlertView.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>
#import <objc/runtime.h>

#include <deque>

/// The peer of an alert. It is in no window: a UIAlertController is shown in its place, because apps with
/// scenes, such as Settings from iOS 13 on, may not use the platform's UIAlertView.
@interface BRAlertView : UIView {
@public
    NSString* _title;
    NSString* _message;
    NSArray* _buttonTitles;
    /// Null without a delegate and when it has been deallocated. Not retained.
    brimsound::UIAlertViewDelegate* _delegate;
    id _nativeDelegate;
}
@end

/// Attached to an alert's delegate. Takes it from the alert when it is deallocated.
@interface BRAlertDelegateLink : NSObject {
@public
    BRAlertView* _alert;
}
@end

@implementation BRAlertDelegateLink

- (void)dealloc
{
    _alert->_delegate = nullptr;
    _alert->_nativeDelegate = nil;
    [super dealloc];
}

@end

@implementation BRAlertView

- (void)setDelegate:(brimsound::UIAlertViewDelegate*)delegate
{
    _delegate = delegate;
    _nativeDelegate = brimsound::ios::nativeInRole(delegate);
    if (!_nativeDelegate)
        return;
    BRAlertDelegateLink* link = [[BRAlertDelegateLink alloc] init];
    link->_alert = self;
    objc_setAssociatedObject(_nativeDelegate, self, link, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    [link release];
}

- (void)dealloc
{
    if (_nativeDelegate)
        objc_setAssociatedObject(_nativeDelegate, self, nil, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    [_title release];
    [_message release];
    [_buttonTitles release];
    [super dealloc];
}

@end

namespace brimsound {

namespace {

::NSArray* nativeTexts(const std::string& first, const std::vector<std::string>& others)
{
    ::NSMutableArray* natives = [::NSMutableArray arrayWithObject:ios::nativeText(first)];
    for (const auto& text : others)
        [natives addObject:ios::nativeText(text)];
    return natives;
}

Peer* makePeer(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
    const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles)
{
    BRAlertView* alert = [[BRAlertView alloc] init];
    alert->_title = title.empty() ? nil : [ios::nativeText(title) retain];
    alert->_message = [ios::nativeText(message) retain];
    alert->_buttonTitles = [nativeTexts(cancelButtonTitle, otherButtonTitles) retain];
    [alert setDelegate:delegate];
    return ios::peer(alert);
}

BRAlertView* nativeOf(const UIAlertView& alert)
{
    return ios::nativeOf(alert);
}

/// The alerts that have not been shown yet.
std::deque<RetainPtr<UIAlertView>>& waitingAlerts()
{
    static auto& waiting = *new std::deque<RetainPtr<UIAlertView>>;
    return waiting;
}

/// The controller of the alert that was shown last, until it is answered. Retained.
UIAlertController* lastController = nil;

/// False as well when the app has taken the alert away without an answer.
bool isAlertShown()
{
    return [lastController presentingViewController] != nil;
}

/// The window of the alert's delegate or, when that is in none, of the app; may be nil.
UIWindow* windowFor(BRAlertView* alert)
{
    id delegate = alert->_nativeDelegate;
    const bool hasView = [delegate isKindOfClass:[::UIViewController class]] && [delegate isViewLoaded];
    UIWindow* window = hasView ? [[delegate view] window] : nil;
    return window ? window : [[::UIApplication sharedApplication] keyWindow];
}

/// The controller whose view covers the window; nil when there is none.
::UIViewController* topmostController(UIWindow* window)
{
    ::UIViewController* topmost = [window rootViewController];
    ::UIViewController* above = [topmost presentedViewController];
    while (above && ![above isBeingDismissed]) {
        topmost = above;
        above = [topmost presentedViewController];
    }
    return topmost;
}

void answered(UIAlertView& alert, NSInteger button);

UIAlertController* makeController(UIAlertView& alert)
{
    BRAlertView* native = nativeOf(alert);
    UIAlertController* controller = [UIAlertController alertControllerWithTitle:native->_title
                                                                        message:native->_message
                                                                 preferredStyle:UIAlertControllerStyleAlert];
    const auto kept = retain(&alert);
    NSInteger index = 0;
    for (::NSString* title in native->_buttonTitles) {
        const NSInteger button = index++;
        [controller addAction:[UIAlertAction actionWithTitle:title
                                                       style:button == 0 ? UIAlertActionStyleCancel
                                                                         : UIAlertActionStyleDefault
                                                     handler:^(UIAlertAction*) { answered(*kept, button); }]];
    }
    return controller;
}

/// An alert for which there is no window is left out.
void showNextAlert()
{
    while (!waitingAlerts().empty() && !isAlertShown()) {
        const auto alert = waitingAlerts().front();
        waitingAlerts().pop_front();
        ::UIViewController* topmost = topmostController(windowFor(nativeOf(*alert)));
        if (!topmost)
            continue;
        [lastController release];
        lastController = [makeController(*alert) retain];
        [topmost presentViewController:lastController animated:YES completion:nil];
    }
}

void answered(UIAlertView& alert, NSInteger button)
{
    [lastController autorelease];
    lastController = nil;
    if (auto* delegate = nativeOf(alert)->_delegate)
        delegate->alertViewClickedButtonAtIndex(alert, button);
    showNextAlert();
}

} // namespace

UIAlertView::UIAlertView(Peer* peer)
    : UIView(peer)
{
}

UIAlertView::UIAlertView(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
    const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles)
    : UIAlertView(makePeer(title, message, delegate, cancelButtonTitle, otherButtonTitles))
{
}

void UIAlertView::show()
{
    waitingAlerts().push_back(brimsound::retain(this));
    showNextAlert();
}

void UIAlertView::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
