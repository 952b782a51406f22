#pragma once

#include "toolkit/control/Button.h"

namespace brimsound::toolkit {

/// The button next to a swiped row; it deletes the row. It may be narrower or wider than `width`.
class DeleteButton : public TitledButton {
public:
    DeleteButton();

    /// The width of the button when the swipe is open, in points.
    static constexpr double width = 82;

    void draw(Canvas&) const override;
    /// With the keyboard, the Delete key deletes the focused row.
    bool isFocusable() const override { return false; }

protected:
    void pressed() override;
};

} // namespace brimsound::toolkit
