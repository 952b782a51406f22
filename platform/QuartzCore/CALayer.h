// Layers: what gives views their shape.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound {

class UIView;

/// The layer that a view is drawn with; a handle that is good for as long as the view lives.
class CALayer {
public:
    explicit CALayer(UIView& view)
        : _view(&view)
    {
    }

    /// In points. It shows where the view clips to its bounds.
    CGFloat cornerRadius() const;
    void setCornerRadius(CGFloat) const;

private:
    UIView* _view;
};

} // namespace brimsound
