// Functions for the peers of list controllers only.
#pragma once

#include "platform/Preferences/PSListController.h"

@class BRListController;

namespace brimsound::ios {

/// Creates the product's object for a native controller that the Settings app has allocated.
PSListController* newControllerFor(BRListController*);

/// Makes the list controller load its specifiers again at their next use.
void forgetSpecifiers(PSListController&);

} // namespace brimsound::ios
