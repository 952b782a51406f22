// The app around a pane.
#pragma once

#include "platform/Preferences/PSListController.h"

namespace brimsound::desktop {

/// Tells a list controller which controller is at the root of the app that shows it. Not retained; to be
/// called before the user can do anything with the pane.
void setRootController(PSListController&, UIViewController& root);

} // namespace brimsound::desktop
