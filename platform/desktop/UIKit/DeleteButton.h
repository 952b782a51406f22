// The button beside a row that was swiped.
#pragma once

#include "platform/UIKit/UIControl.h"

namespace brimsound::desktop {

/// Deletes the row that its table has swiped. It may be narrower than it wants to be, or wider.
class DeleteButton : public UIControl {
public:
    DeleteButton();

    /// The width that the button wants, in points.
    static constexpr double width = 82;
};

} // namespace brimsound::desktop
