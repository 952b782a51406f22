#pragma once

#include "toolkit/image/Image.h"

namespace brimsound::tests {

/// An image of this size in points, filled with one color.
inline toolkit::Ref<toolkit::Image> filledImage(toolkit::Size size, const toolkit::Color& color)
{
    class Filled : public toolkit::Image {
    public:
        Filled(toolkit::Size size, const toolkit::Color& color)
            : Image(size)
            , _color(color)
        {
        }
        void draw(toolkit::Canvas& canvas, const toolkit::Rect& rect) const override
        {
            canvas.fillRect(rect, _color);
        }

    private:
        const toolkit::Color _color;
    };
    return toolkit::make<Filled>(size, color);
}

} // namespace brimsound::tests
