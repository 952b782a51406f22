// The bundle's principal class, which the Settings app instantiates.
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UIAlertView.h"
#include "platform/ios/Foundation/NativeError.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Preferences/BRListController.h"
#include "settings/BrimsoundSettings.h"

#import <MessageUI/MessageUI.h>

using brimsound::ios::objectOf;

@interface BrimsoundSettingsListController : BRListController <MFMailComposeViewControllerDelegate>
@end

namespace {

brimsound::BrimsoundSettingsListController* controllerOf(BrimsoundSettingsListController* native)
{
    return brimsound::ios::existingObjectOf<brimsound::BrimsoundSettingsListController>(native);
}

/// An empty alert for an object that is not the peer of one.
brimsound::RetainPtr<brimsound::UIAlertView> alertFor(id native)
{
    using brimsound::UIAlertView;
    if (auto* alert = dynamic_cast<UIAlertView*>(brimsound::ios::existingObjectOf(native)))
        return brimsound::retain(alert);
    return brimsound::make<UIAlertView>("", "", nullptr, "", std::vector<std::string> {});
}

} // namespace

// Its other selectors come from the method table of the product's class.
@implementation BrimsoundSettingsListController

+ (brimsound::PSListController*)newController
{
    return new brimsound::BrimsoundSettingsListController;
}

/// The alert may be any object: the pane's own alerts do not call this method, and the pane only uses the
/// index.
- (void)alertView:(id)alert clickedButtonAtIndex:(NSInteger)index
{
    const auto answered = alertFor(alert);
    if (auto* controller = controllerOf(self))
        controller->alertViewClickedButtonAtIndex(*answered, index);
}

- (void)mailComposeController:(MFMailComposeViewController*)composer
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)nativeError
{
    auto* controller = controllerOf(self);
    const auto error = brimsound::ios::errorOf(nativeError);
    if (controller)
        controller->mailComposeControllerDidFinishWithResultError(
            *objectOf<brimsound::MFMailComposeViewController>(composer),
            static_cast<brimsound::MFMailComposeResult>(result), error ? &*error : nullptr);
}

@end
