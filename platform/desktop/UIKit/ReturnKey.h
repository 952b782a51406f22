// The return key of the keyboard on the screen, as far as there is one.
#pragma once

#include "platform/UIKit/UIControl.h"

#include <string>

namespace brimsound::desktop {

/// Lies at the right end of a text field, which owns it, while that is edited, so that a pointer alone can
/// confirm the text. It does what Return does, and says what the field's return key type asks for. The
/// keyboard passes it by.
class ReturnKey : public UIControl {
public:
    ReturnKey();

    std::string title() const;
    /// What the key takes of the field's width, with the space that keeps it apart from the text, in points.
    double width() const;
};

} // namespace brimsound::desktop
