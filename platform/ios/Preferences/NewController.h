// Making the object that belongs to a native list controller, and what only its peer may do to it.
#pragma once

#include "platform/Preferences/PSListController.h"

@class BRListController;

namespace brimsound::ios {

/// The object for a native controller that the Settings app has allocated.
PSListController* newControllerFor(BRListController*);

/// Has the specifiers loaded anew when they are next asked for.
void forgetSpecifiers(PSListController&);

} // namespace brimsound::ios
