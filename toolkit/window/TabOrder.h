// The order in which the keyboard goes through the views.
#pragma once

#include "toolkit/input/Key.h"

namespace brimsound::toolkit {

class ScrollView;
class View;

/// The view itself or the nearest view around it that takes the keyboard; null when there is none. A list is
/// one stop, whatever its row.
View* tabStopAround(View&);

/// The stop before or after a view, in the order in which the views are read; the first or the last one comes
/// after the other end. Rows that a table has not got on view are scrolled to. Without a view, the first or
/// the last one on view; null when there is none.
View* tabStopBeside(View& window, const View* from, Direction);

/// The first view that scrolls among those in front; null when there is none.
ScrollView* scrollViewInFront(View& window);

} // namespace brimsound::toolkit
