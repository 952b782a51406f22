// All built-in presets as curves.
#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound::desktop {

/// A row for each preset, with its name and its curve in each of the looks that a curve has.
class CurveSheet : public UIView {
public:
    CurveSheet();
};

} // namespace brimsound::desktop
