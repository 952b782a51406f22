#pragma once

#include "toolkit/input/Key.h"

namespace brimsound::toolkit {

class ScrollView;
class View;

/// The view itself or its nearest ancestor that Tab stops at; may be null. Tab stops once at a list, not at
/// each of its rows.
View* tabStopAround(View&);

/// The next or previous stop of Tab, in reading order, wrapping around at the end. Scrolls to rows that are
/// not visible yet. Without a view, the first or the last visible stop. May be null.
View* tabStopBeside(View& window, const View* from, Direction);

/// The first scroll view in reading order that is not covered; may be null.
ScrollView* scrollViewInFront(View& window);

} // namespace brimsound::toolkit
