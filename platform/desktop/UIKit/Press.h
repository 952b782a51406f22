// Touches made on behalf of those who cannot point.
#pragma once

#include "platform/UIKit/UISlider.h"
#include "platform/UIKit/UITableViewCell.h"

namespace brimsound::desktop {

/// All scroll the view into view and are false when it cannot be touched: it is covered, or a touch is down
/// already. Pressing and sliding touch it through its window.

/// Touches the middle of what shows of the view: down and up.
bool press(UIView&);

/// Touches the view where no view in front of it is, near its edges: down and up.
bool pressBeside(UIView&);

/// Takes the slider by its thumb, brings that to where the value is, and lets go.
bool slideTo(UISlider&, double value);
/// The same in three steps. The last two are nothing without the first.
bool takeThumb(UISlider&);
void dragThumb(UISlider&, double value);
void releaseThumb(UISlider&);

/// Deletes the row as if it had been swiped and its button pressed; false, too, when it is not to be deleted.
bool deleteRow(UITableViewCell&);

/// Scrolls what scrolls by so many of its heights, downwards when positive.
void scrollPages(UIView& scrollView, double pages);

} // namespace brimsound::desktop
