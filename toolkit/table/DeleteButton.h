// The button beside a row that was swiped.
#pragma once

#include "toolkit/control/Button.h"

namespace brimsound::toolkit {

/// Deletes the swiped row of the table that it lies in. It may be narrower than it wants to be, or wider.
class DeleteButton : public TitledButton {
public:
    DeleteButton();

    /// The width that the button wants, in points.
    static constexpr double width = 82;

    void draw(Canvas&) const override;
    /// The Delete key deletes the row that has the keyboard.
    bool isFocusable() const override { return false; }

protected:
    void pressed() override;
};

} // namespace brimsound::toolkit
