#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound {

class UIView;

/// The layer of a view. A handle that is valid as long as the view exists.
class CALayer {
public:
    explicit CALayer(UIView& view)
        : _view(&view)
    {
    }

    /// In points. Only visible when the view clips to its bounds.
    CGFloat cornerRadius() const;
    void setCornerRadius(CGFloat) const;

private:
    UIView* _view;
};

} // namespace brimsound
