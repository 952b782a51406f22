// What Escape does.
#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound::desktop {

/// Closes what covers everything else in the view, which is a window: an overlay, or a view that has a plain
/// button behind all it shows, to be touched beside that. False when nothing is in front.
bool closeFront(UIView&);

} // namespace brimsound::desktop
