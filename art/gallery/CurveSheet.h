#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound::desktop {

/// A row for each built-in preset, with its name and its curve in each of the styles of curves.
class CurveSheet : public UIView {
public:
    CurveSheet();
};

} // namespace brimsound::desktop
