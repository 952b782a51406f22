// The bundle's principal class: what the Settings app instantiates.
#include "platform/ios/Preferences/BRListController.h"
#include "settings/BrimsoundSettings.h"

@interface BrimsoundSettingsListController : BRListController
@end

@implementation BrimsoundSettingsListController

+ (brimsound::PSListController*)newController
{
    return new brimsound::BrimsoundSettingsListController;
}

@end
