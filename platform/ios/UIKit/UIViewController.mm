#include "platform/UIKit/UIViewController.h"

#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/UIKit/LightAppearance.h"

#import <UIKit/UIKit.h>

/// The peer of a view-controller class that can be derived from.
@interface BRViewController : UIViewController
@end

@implementation BRViewController

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

- (void)viewDidLoad
{
    [super viewDidLoad];
    brimsound::ios::keepLight([self view]);
}

- (void)viewDidUnload
{
    if (auto* controller = brimsound::ios::existingObjectOf<brimsound::UIViewController>(self))
        controller->viewDidUnload();
}

- (void)viewDidLayoutSubviews
{
    if (auto* controller = brimsound::ios::existingObjectOf<brimsound::UIViewController>(self))
        controller->viewDidLayoutSubviews();
}

@end

namespace brimsound {

namespace {

::UIViewController* nativeOf(const UIViewController& controller)
{
    return ios::nativeOf(controller);
}

} // namespace

UIViewController::UIViewController()
    : UIViewController(ios::peer([[BRViewController alloc] init]))
{
}

UIViewController::UIViewController(Peer* peer)
    : NSObject(peer)
{
}

UIView& UIViewController::view() const
{
    return *ios::objectOf<UIView>([nativeOf(*this) view]);
}

void UIViewController::setView(RetainPtr<UIView> view)
{
    [nativeOf(*this) setView:ios::nativeOf(view.get())];
}

void UIViewController::presentViewControllerAnimatedCompletion(
    RetainPtr<UIViewController> controller, Animated animated, const std::function<void()>& completion)
{
    // On a device without a mail account the mail composer is nil.
    ::UIViewController* native = ios::nativeOf(controller.get());
    if ([nativeOf(*this) presentedViewController] || ![native isKindOfClass:[::UIViewController class]])
        return;
    const auto finished = completion;
    [nativeOf(*this) presentViewController:native
                                  animated:animated == Animated::Yes
                                completion:^{
                                    if (finished)
                                        finished();
                                }];
}

void UIViewController::dismissViewControllerAnimatedCompletion(
    Animated animated, const std::function<void()>& completion)
{
    if (![nativeOf(*this) presentedViewController])
        return;
    const auto finished = completion;
    [nativeOf(*this) dismissViewControllerAnimated:animated == Animated::Yes
                                        completion:^{
                                            if (finished)
                                                finished();
                                        }];
}

} // namespace brimsound
