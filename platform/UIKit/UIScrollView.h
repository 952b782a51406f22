// Views that scroll.
#pragma once

#include "platform/UIKit/UIView.h"

namespace brimsound {

/// A view whose contents move up and down under a finger or a wheel.
class UIScrollView : public UIView {
public:
    /// The point of the contents, in points, that is at the view's top left corner.
    CGPoint contentOffset() const;
    /// Scrolls there at once, and ends any movement. Only y counts, no further than to the contents' edges.
    void setContentOffset(CGPoint);

protected:
    explicit UIScrollView(Peer*);
};

} // namespace brimsound
