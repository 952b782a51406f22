// The order in which the keyboard goes through the views.
#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/desktop/UIKit/Key.h"

namespace brimsound::desktop {

/// The view itself or the nearest view around it that takes the keyboard; null when there is none. A list is
/// one stop, whatever its row.
UIView* tabStopAround(UIView&);

/// The stop before or after a view, in the order in which the views are read; the first or the last one comes
/// after the other end. Rows that a table has not got on view are scrolled to. Without a view, the first or
/// the last one on view; null when there is none.
UIView* tabStopBeside(UIView& window, const UIView* from, Direction);

/// The first view that scrolls among those in front; null when there is none.
UIView* scrollViewInFront(UIView& window);

} // namespace brimsound::desktop
