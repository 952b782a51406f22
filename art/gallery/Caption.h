// Small text next to a picture.
#pragma once

#include "platform/UIKit/UILabel.h"

namespace brimsound::desktop {

RetainPtr<UILabel> caption(const std::string& text, const CGRect& frame);

} // namespace brimsound::desktop
