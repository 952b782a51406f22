// The bundle's principal class, which the Settings app instantiates.
#include "platform/MessageUI/MFMailComposeViewController.h"
#include "platform/UIKit/UIAlertView.h"
#include "platform/ios/Foundation/NativeError.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/Preferences/BRListController.h"
#include "settings/BrimsoundSettings.h"

#import <MessageUI/MessageUI.h>

using brimsound::ios::objectOf;

@interface BrimsoundSettingsListController
    : BRListController <UIAlertViewDelegate, MFMailComposeViewControllerDelegate>
@end

namespace {

brimsound::BrimsoundSettingsListController* controllerOf(BrimsoundSettingsListController* native)
{
    return brimsound::ios::existingObjectOf<brimsound::BrimsoundSettingsListController>(native);
}

} // namespace

// Its other selectors come from the method table of the product's class.
@implementation BrimsoundSettingsListController

+ (brimsound::PSListController*)newController
{
    return new brimsound::BrimsoundSettingsListController;
}

- (void)alertView:(UIAlertView*)alert clickedButtonAtIndex:(NSInteger)index
{
    if (auto* controller = controllerOf(self))
        controller->alertViewClickedButtonAtIndex(*objectOf<brimsound::UIAlertView>(alert), index);
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
