#pragma once

#include "platform/Preferences/PSListController.h"

namespace brimsound::desktop {

/// Sets the root controller of the app that shows the list controller. Not retained. Must be called before
/// the user can operate the pane.
void setRootController(PSListController&, UIViewController& root);

} // namespace brimsound::desktop
