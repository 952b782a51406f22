// Where the knobs of controls are drawn.
#pragma once

#include "tests/unit/toolkit/BlankCanvas.h"
#include "toolkit/view/View.h"

namespace brimsound::tests {

/// Keeps the place of the last disc that was drawn: of a knob, its white top.
class KnobFinder : public BlankCanvas {
public:
    void fillEllipse(const toolkit::Rect& rect, const toolkit::Color&) override { lastDisc = rect; }

    toolkit::Rect lastDisc;
};

/// In the view's own coordinates.
inline toolkit::Rect knobOf(const toolkit::View& view)
{
    KnobFinder canvas;
    view.draw(canvas);
    return canvas.lastDisc;
}

} // namespace brimsound::tests
