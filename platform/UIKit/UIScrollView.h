#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound {

/// A view that scrolls its content vertically, by touch or wheel.
class UIScrollView : public UIView {
public:
    /// The point of the content, in points, at the view's top left corner.
    CGPoint contentOffset() const;
    /// Scrolls there at once and stops any movement. Only y is used; it is limited to the edges of the
    /// content.
    void setContentOffset(CGPoint);

protected:
    explicit UIScrollView(Peer*);
};

} // namespace brimsound
