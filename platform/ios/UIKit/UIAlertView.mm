#include "platform/UIKit/UIAlertView.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>
#import <objc/runtime.h>

/// Forwards the answer to the product's delegate. The alert retains this object and with it the delegate,
/// which might otherwise be destroyed before the answer: the app can leave a pane while the alert is still
/// shown.
@interface BRAlertViewDelegate : NSObject <UIAlertViewDelegate> {
@public
    brimsound::UIAlertViewDelegate* _delegate;
    id _nativeDelegate;
}
@end

@implementation BRAlertViewDelegate

- (void)dealloc
{
    [_nativeDelegate release];
    [super dealloc];
}

- (void)alertView:(UIAlertView*)alert clickedButtonAtIndex:(NSInteger)index
{
    _delegate->alertViewClickedButtonAtIndex(*brimsound::ios::objectOf<brimsound::UIAlertView>(alert), index);
}

@end

namespace brimsound {

namespace {

const char delegateKey = 0;

Peer* makePeer(const std::string& title, const std::string& message, UIAlertViewDelegate* delegate,
    const std::string& cancelButtonTitle, const std::vector<std::string>& otherButtonTitles)
{
    BRAlertViewDelegate* native = nil;
    if (delegate) {
        native = [[[BRAlertViewDelegate alloc] init] autorelease];
        native->_delegate = delegate;
        native->_nativeDelegate = [ios::nativeInRole(delegate) retain];
    }
    ::UIAlertView* alert = [[::UIAlertView alloc] initWithTitle:title.empty() ? nil : ios::nativeText(title)
                                                        message:ios::nativeText(message)
                                                       delegate:native
                                              cancelButtonTitle:ios::nativeText(cancelButtonTitle)
                                              otherButtonTitles:nil];
    objc_setAssociatedObject(alert, &delegateKey, native, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
    for (const auto& text : otherButtonTitles)
        [alert addButtonWithTitle:ios::nativeText(text)];
    return ios::peer(alert);
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
    ::UIAlertView* native = ios::nativeOf(*this);
    [native show];
}

void UIAlertView::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
