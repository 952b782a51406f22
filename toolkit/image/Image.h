#pragma once

#include "toolkit/drawing/Canvas.h"
#include "toolkit/object/Object.h"

namespace brimsound::toolkit {

/// A picture with a constant size in points.
class Image : public Object {
public:
    Size size() const { return _size; }

    /// Draws the picture over the rectangle.
    virtual void draw(Canvas&, const Rect&) const = 0;

protected:
    explicit Image(Size size)
        : _size(size)
    {
    }

private:
    const Size _size;
};

} // namespace brimsound::toolkit
