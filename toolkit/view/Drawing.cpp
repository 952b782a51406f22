#include "toolkit/scroll/ScrollView.h"
#include "toolkit/view/Transition.h"
#include "toolkit/view/View.h"
#include "toolkit/window/Window.h"

#include <algorithm>

namespace brimsound::toolkit {

namespace {

/// Whether the rectangle intersects one of the squares with the rounded corners of `around`.
bool reachesCorner(const Rect& rect, const Rect& around, double radius)
{
    const double beside = std::min(rect.left() - around.left(), around.right() - rect.right());
    const double above = std::min(rect.top() - around.top(), around.bottom() - rect.bottom());
    return beside < radius && above < radius;
}

} // namespace

Rect View::shownFrame() const
{
    return _transition ? _transition->frame(_frame) : _frame;
}

double View::shownAlpha() const
{
    return _transition ? _transition->alpha(_alpha) : _alpha;
}

Color View::shownBackground() const
{
    const auto color = _background.value_or(transparent);
    return _transition ? _transition->background(color) : color;
}

bool View::isMoving() const
{
    return _transition && _transition->isMoving();
}

Rect View::shownInParent(const Rect& rect) const
{
    return offset(rect, shownFrame().origin - _origin);
}

const Rect& View::reach() const
{
    if (!_reach)
        _reach = computeReach();
    return *_reach;
}

void View::reachChanged() const
{
    _reach.reset();
    for (const auto* view = _parent; view && view->_reach; view = view->_parent)
        view->_reach.reset();
}

Rect View::computeReach() const
{
    if (_clips)
        return shownBounds();
    auto reach = inset(shownBounds(), -overhang(), -overhang());
    for (const auto& child : _children) {
        if (!child->_hidden)
            reach = unite(reach, child->shownInParent(child->reach()));
    }
    return reach;
}

void View::setNeedsDisplay() const
{
    setNeedsDisplay(reach());
}

void View::setNeedsDisplay(const Rect& rect) const
{
    auto* around = window();
    if (!around)
        return;
    auto part = rect;
    for (const auto* view = this; view != around; view = view->_parent) {
        if (view->_hidden)
            return;
        part = view->shownInParent(part);
    }
    around->invalidate(part);
}

void View::drawTree(Canvas& canvas) const
{
    const auto frame = shownFrame();
    const double alpha = shownAlpha();
    if (_hidden || alpha <= 0 || !isFinite(frame))
        return;
    const auto& reach = this->reach();
    if (!canvas.showsAnythingIn(shownInParent(reach)))
        return;

    canvas.save();
    canvas.translate(frame.origin - _origin);
    const bool rounded = _clips && _cornerRadius > 0;
    const bool grouped = rounded || alpha < 1;
    if (grouped)
        canvas.beginGroup(reach, alpha, rounded ? _cornerRadius : 0);
    else if (_clips)
        canvas.clip(reach);
    drawContents(canvas);
    if (grouped)
        canvas.endGroup();
    canvas.restore();
}

void View::drawContents(Canvas& canvas) const
{
    if (const auto color = shownBackground(); color.alpha > 0)
        canvas.fillPixels(shownBounds(), color);
    draw(canvas);
    for (const auto& child : _children)
        child->drawTree(canvas);
    drawAbove(canvas);
    if (_showsFocus)
        drawFocusRing(focusRing(), canvas);
}

FocusRing View::focusRing() const
{
    // Scrolling must not change the ring's shape.
    const auto part = partWithin(enclosingScrollView());
    return { inset(part, focusRingInset, focusRingInset), focusRingRadius() };
}

double View::focusRingRadius() const
{
    auto radius = FocusRing().radius;
    const auto part = partWithin(nullptr);
    for (const auto* ancestor = _parent; ancestor; ancestor = ancestor->_parent) {
        const Rect place { ancestor->fromWindow(toWindow(part.origin)), part.size };
        if (ancestor->_clips && reachesCorner(place, ancestor->bounds(), ancestor->_cornerRadius))
            radius = std::max(radius, ancestor->_cornerRadius - focusRingInset);
    }
    return radius;
}

} // namespace brimsound::toolkit
