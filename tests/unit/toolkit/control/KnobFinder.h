#pragma once

#include "tests/unit/toolkit/BlankCanvas.h"
#include "toolkit/view/View.h"

namespace brimsound::tests {

/// Records where the last disc was drawn, which is the white part of a knob.
class KnobFinder : public BlankCanvas {
public:
    void fillEllipse(const toolkit::Rect& rect, const toolkit::Color&) override { lastDisc = rect; }

    toolkit::Rect lastDisc;
};

/// The frame of the knob in the view's own coordinates.
inline toolkit::Rect knobOf(const toolkit::View& view)
{
    KnobFinder canvas;
    view.draw(canvas);
    return canvas.lastDisc;
}

} // namespace brimsound::tests
