// The plus sign of the Save row and the results of the image operations on it.
#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound::desktop {

/// Two rows: the image at one pixel per point and the same at two. Each shows the image and its filled,
/// darkened and inverted forms, enlarged.
class ImageSheet : public UIView {
public:
    ImageSheet();
};

} // namespace brimsound::desktop
