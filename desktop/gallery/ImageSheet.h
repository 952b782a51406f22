// The plus of the Save row and what the image operations make of it.
#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound::desktop {

/// A row for the image at one pixel a point and one for the same at two, each beside its filled, darkened and
/// inverted forms, all drawn large.
class ImageSheet : public UIView {
public:
    ImageSheet();
};

} // namespace brimsound::desktop
