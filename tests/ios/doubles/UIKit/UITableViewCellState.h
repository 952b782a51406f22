// What others see of a cell.
#pragma once

#import <UIKit/UIKit.h>

namespace brimsound::doubles {

/// Has the cell lay itself out anew when the view is one of its own labels or its image view.
void rowContentsChanged(UIView*);

} // namespace brimsound::doubles
